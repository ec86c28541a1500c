// The back end that speaks with espeak-ng in this process.
#pragma once

#include <mutex>
#include <optional>
#include <string>
#include <vector>

#include "speech/SpeechBackEnd.h"
#include "speech/sound/AlsaStream.h"
#include "speech/sound/PulseStream.h"

namespace qves {

/// One at a time in a process has the library, which has but one state; the next waits a while for it.
class EspeakBackEnd : public SpeechBackEnd {
 public:
  explicit EspeakBackEnd(Wake& changed) : Changed(changed) {}
  const std::vector<Voice>& Voices() override;
  bool Play(Utterance& text, Playing& playing) override;
  TimePoint Rest() override;

 private:
  bool Start();
  SoundStream* Output();
  bool PlayOn(SoundStream* stream, const Utterance& text, Playing& playing);
  void Apply(const Utterance& text);

  Wake& Changed;
  bool Started = false;
  std::unique_lock<std::timed_mutex> Turn;
  std::vector<Voice> Offered;  // empty: the library cannot speak
  std::string CurrentKey;
  std::optional<PulseStream> Server;
  std::optional<AlsaStream> Device;
  bool LookedForServer = false;  // so the first text finds it connected
  SoundStream* Awake = nullptr;  // the stream that keeps the sound device awake
  TimePoint LastPlayed;
  bool LastStopped = true;
};

}  // namespace qves
