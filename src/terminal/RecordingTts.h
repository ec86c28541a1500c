// A speech engine that records instead of speaking, or beside a real one.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "platform/TTS.h"

namespace qves {

/// One thing asked of the speech: "now", "queued" or "stop".
struct SpokenText {
  std::string_view How;
  std::string Text;
};

using Transcript = std::vector<SpokenText>;

/// A text with marks that is being read: it stands still until it is moved on.
struct RecordedReading {
  std::vector<std::int32_t> Marks;  ///< those to come
  TtsSpeaker* Speaker = nullptr;    ///< null: nothing is being read
};

class RecordingTts : public TTS {
 public:
  /// Records into the transcript. With a real speech list its engines are chosen and speak too.
  explicit RecordingTts(Transcript& transcript, TTS* real = nullptr) : Record(transcript), Real(real) {}

  std::vector<TtsEngineInfo> Engines() const override;
  std::unique_ptr<TtsEngine> Open(TtsChooser choose) override;
  void SetListener(TtsListener* listener) override;

  /// The reading reaches so many of its marks, or all of them and its end.
  void ReadOn(std::optional<int> marks);

 private:
  Transcript& Record;
  RecordedReading Reading;
  TtsListener* Listener = nullptr;
  TTS* Real;
};

}  // namespace qves
