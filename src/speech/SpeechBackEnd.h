// What a back end is: it lists its voices, and plays one text until it is told to stop.
#pragma once

#include <atomic>
#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "platform/TTS.h"
#include "speech/SpeechScales.h"
#include "speech/Wake.h"

namespace qves {

class SpeechBackEnd;

struct Voice {
  TtsEngineInfo Info;
  std::string Key;                       ///< its name for the back end; empty: the back end's own default
  const SpeechBackEnd* Owner = nullptr;  ///< whose voice it is
};

struct VoiceSettings {
  int WordsPerMinute = UnsetSpeed;
  std::int32_t Volume = UnsetVolume;  ///< 0 to 65535
  std::optional<int> Pitch;           ///< on PitchScale; unset: the voice's own
};

/// The text is clean and its marks are in order when a back end gets it.
struct Utterance : MarkedText {
  VoiceSettings Settings;
  Voice Speaking;
};

/// What a back end looks at and tells while it plays a text.
class Playing {
 public:
  Playing(Wake& changed, const std::atomic<bool>& stop, std::function<void(std::int32_t)> reach)
      : Changed(changed), Stop(stop), Reach(std::move(reach)) {}
  /// True when the text is to be silenced.
  bool Stopped() const { return Stop; }
  /// A mark is heard.
  void ReachMark(std::int32_t number) const { Reach(number); }
  Wake& Changed;  ///< notified when Stopped() has become true

 private:
  const std::atomic<bool>& Stop;
  std::function<void(std::int32_t)> Reach;
};

/// All is called on the queue's thread, the destructor included, so nothing of a back end needs a lock. The
/// constructor does nothing that takes time.
class SpeechBackEnd {
 public:
  virtual ~SpeechBackEnd() = default;
  /// The voices known by now, the best for the desktop's user first.
  virtual const std::vector<Voice>& Voices() = 0;
  /// Plays the text, in a voice of its own, until it has been heard or is stopped. False: this back end
  /// cannot speak it, now; the text is then what is left of it for another one.
  virtual bool Play(Utterance& text, Playing& playing) = 0;
  /// There is nothing to play; called after each text. Returns when to call it again. What it does meanwhile
  /// ends when the queue's wake is notified, which it never clears. Voices() may tell more afterwards.
  virtual TimePoint Rest() = 0;
};

}  // namespace qves
