// One text on its way from the synthesis into the sound stream.
#pragma once

#include <espeak-ng/speak_lib.h>

#include <chrono>
#include <cstdint>
#include <span>

#include "speech/SpeechBackEnd.h"
#include "speech/espeak/MarkTracker.h"
#include "speech/sound/SoundStream.h"

namespace qves {

/// Speaks within its one call; the library's callback leads here by the text's user data.
class EspeakPlayback {
 public:
  EspeakPlayback(SoundStream& stream, int samplesPerSecond, const Utterance& text, Playing& playing);
  /// Returns when the text has been heard, after a pause before it, or is interrupted, or the stream has
  /// failed: then false.
  bool Run(std::chrono::milliseconds pauseBefore);
  /// For espeak_SetSynthCallback.
  static int Receive(short* samples, int count, espeak_EVENT* events);

 private:
  bool Take(std::span<const std::int16_t> samples, const espeak_EVENT* events);
  bool WriteAll(std::span<const std::int16_t> samples);
  std::span<const std::int16_t> WithoutLead(std::span<const std::int16_t> samples);
  void NoteEvents(const espeak_EVENT* events);
  bool WaitUntilHeard();
  void Pause();
  std::int64_t Played();
  bool Stalled();

  SoundStream& Stream;
  int Rate;
  const Utterance& Text;
  Playing& Now;
  MarkTracker Marks;
  std::int64_t Written = 0;  // samples
  std::int64_t Lead = 0;     // samples of silence that were left out, less those put before
  std::int64_t LeadLeft;     // how many more may be left out
  bool Audible = false;
  bool Broken = false;  // the output has failed
  std::int64_t LastPlayed = -1;
  TimePoint LastProgress = SteadyClock::now();
};

}  // namespace qves
