// Event sounds through libcanberra: it plays through PulseAudio, PipeWire in its place, or ALSA.
#pragma once

#include <memory>
#include <string>

#include "platform/Outside.h"
#include "platform/SoundPlayer.h"

namespace qves {

class CanberraSounds : public SoundPlayer {
 public:
  explicit CanberraSounds(EventPump& pump);
  ~CanberraSounds() override;

  /// While a sound server hangs in a call every other call gives false at once.
  bool Play(const std::string& path, bool wait) override;

 private:
  struct State;

  EventPump& Pump;
  std::shared_ptr<State> Shared;
};

}  // namespace qves
