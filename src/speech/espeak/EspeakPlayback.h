// One text on its way from the synthesis into the sound stream.
#pragma once

#include <espeak-ng/speak_lib.h>

#include <chrono>
#include <cstdint>
#include <deque>
#include <functional>
#include <limits>
#include <span>

#include "speech/SpeechBackEnd.h"
#include "speech/sound/SoundStream.h"

namespace qves {

/// Speaks within its one call; the library's callback leads here by the text's user data.
class EspeakPlayback {
 public:
  EspeakPlayback(SoundStream& stream, int samplesPerSecond, const Utterance& text, Playing& playing);
  /// Returns when the text has been heard, after a pause before it, or is interrupted, or the stream has
  /// failed: then false.
  bool Run(std::chrono::milliseconds pauseBefore);
  /// Something of it has been heard.
  bool HasBegun() const { return LastPlayed > 0; }
  /// For espeak_SetSynthCallback.
  static int Receive(short* samples, int count, espeak_EVENT* events);

 private:
  bool Take(std::span<const std::int16_t> samples, const espeak_EVENT* events);
  bool WriteAll(std::span<const std::int16_t> samples);
  std::span<const std::int16_t> WithoutLead(std::span<const std::int16_t> samples);
  void PlaceMarks(const espeak_EVENT& event);
  void ReachMarks(std::int64_t sample);
  bool WaitUntil(const std::function<bool()>& reached);
  void Pause();
  std::int64_t Played();
  bool Stalled();

  /// The library loses marks in markup that lie between two sentences, so they are found by the places of the
  /// words. None is lost: at the latest, it is reached when all of the text has been heard.
  static constexpr std::int64_t NotYet = std::numeric_limits<std::int64_t>::max() / 2;
  struct Mark {
    std::size_t Character;
    std::int32_t Number;
    std::int64_t Sample = NotYet;  // of the word that follows
  };

  SoundStream& Stream;
  int Rate;
  const Utterance& Text;
  Playing& Now;
  std::deque<Mark> Marks;    // that have not been reached, in order
  std::int64_t Written = 0;  // samples
  std::int64_t Lead = 0;     // samples of silence that were left out, less those put before
  std::int64_t LeadLeft;     // how many more may be left out
  bool Audible = false;
  bool Broken = false;  // the output has failed
  std::int64_t LastPlayed = -1;
  TimePoint LastProgress = SteadyClock::now();
};

}  // namespace qves
