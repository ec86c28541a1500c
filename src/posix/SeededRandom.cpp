#include "posix/SeededRandom.h"

namespace qves {

double SeededRandom::Next() {
  if (!Generator) Generator.emplace(Seed ? *Seed : std::random_device()());
  // 53 random bits: as many as a double has, so that 1 is never reached.
  return static_cast<double>((*Generator)() >> 11) * 0x1p-53;
}

}  // namespace qves
