// Event sounds, whose library is loaded with the first of them.
#pragma once

#include <memory>

#include "platform/Outside.h"
#include "platform/SoundPlayer.h"

namespace qves {

class ModuleSounds : public SoundPlayer {
 public:
  explicit ModuleSounds(EventPump& pump) : Pump(pump) {}

  /// False, always, where the module is missing; the first time a line on standard error tells.
  bool Play(const std::string& path, bool wait) override;

 private:
  void Load();

  EventPump& Pump;
  bool Tried = false;
  std::unique_ptr<SoundPlayer> Player;
};

}  // namespace qves
