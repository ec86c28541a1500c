// A voice for where nothing is to be heard. It reads aloud mark by mark, when it is told to.
#pragma once

#include <deque>
#include <optional>

#include "platform/TTS.h"

namespace qves {

/// A text with marks that is being read: it stands still until it is moved on.
struct SilentReading {
  std::deque<std::int32_t> Marks;  ///< those to come
  TtsSpeaker* Speaker = nullptr;   ///< null: nothing is being read
};

class SilentTts : public TTS {
 public:
  std::vector<TtsEngineInfo> Engines() const override { return {{"QVES", "transcript", "transcript", 9}}; }
  std::unique_ptr<TtsEngine> Open(TtsChooser choose) override;
  void SetListener(TtsListener* listener) override { Listener = listener; }

  /// The reading reaches so many of its marks, or all of them and its end.
  void ReadOn(std::optional<int> marks);

 private:
  SilentReading Reading;
  TtsListener* Listener = nullptr;
};

}  // namespace qves
