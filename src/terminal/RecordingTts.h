// A speech engine that records instead of speaking, or beside a real one.
#pragma once

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

class RecordingTts : public TTS {
 public:
  /// Records into the transcript. With a real speech list its engines are chosen and speak too.
  explicit RecordingTts(Transcript& transcript, TTS* real = nullptr) : Record(transcript), Real(real) {}

  int Count() const override { return Real ? Real->Count() : 1; }
  TtsEngineInfo Item(int index) const override;
  std::unique_ptr<TtsEngine> Open(int index) override;
  void SetListener(TtsListener* listener) override;

 private:
  Transcript& Record;
  TTS* Real;
};

}  // namespace qves
