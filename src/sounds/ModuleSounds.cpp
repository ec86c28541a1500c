#include "sounds/ModuleSounds.h"

#include <iostream>
#include <utility>

#include "posix/Module.h"

namespace qves {

bool ModuleSounds::Play(const std::string& path, bool wait) {
  if (!std::exchange(Tried, true)) Load();
  return Player && Player->Play(path, wait);
}

void ModuleSounds::Load() {
  using Maker = SoundPlayer* (*)(EventPump*);
  std::string error;
  const auto make = reinterpret_cast<Maker>(FindInModule("libqvescalc-sounds.so", "QvesMakeSounds", error));
  if (make)
    Player.reset(make(&Pump));
  else
    std::cerr << "no event sounds: " << error << "\n";
}

}  // namespace qves
