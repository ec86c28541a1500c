// The one function of the sound module.
#include "sounds/canberra/CanberraSounds.h"

/// The caller owns what it gets.
extern "C" __attribute__((visibility("default"))) qves::SoundPlayer* QvesMakeSounds(qves::EventPump* pump) {
  return new qves::CanberraSounds(*pump);
}
