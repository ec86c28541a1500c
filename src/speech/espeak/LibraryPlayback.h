// Speaking through the library's own sound output, where no sound server of the desktop answers.
#pragma once

#include <espeak-ng/speak_lib.h>

#include <memory>
#include <mutex>
#include <optional>

#include "speech/SpeechWorker.h"
#include "speech/espeak/MarkTracker.h"

namespace qves {

/// What the library's thread tells about the text that it plays. It outlives the texts, as events may come
/// late.
class LibraryPlayback {
 public:
  explicit LibraryPlayback(Signal& wake) : Wake(wake) {}
  /// Returns when the text has been heard or is interrupted. False: there is no sound device.
  bool Run(const Utterance& text, PlayControl& control);
  /// For espeak_SetSynthCallback.
  static int Receive(short* samples, int count, espeak_EVENT* events);

 private:
  void Note(const espeak_EVENT& event);
  bool Over();
  bool Begun();

  Signal& Wake;
  std::mutex Mutex;  // of what follows
  bool HasBegun = false;
  bool HasEnded = false;
  std::optional<MarkTracker> Marks;
};

}  // namespace qves
