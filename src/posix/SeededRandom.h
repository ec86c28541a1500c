// Random numbers: other ones in each run, or the same ones for a given seed.
#pragma once

#include <optional>
#include <random>

#include "platform/Outside.h"

namespace qves {

class SeededRandom : public RandomSource {
 public:
  explicit SeededRandom(std::optional<unsigned long> seed = {}) : Seed(seed) {}
  double Next() override;

 private:
  std::optional<unsigned long> Seed;
  std::optional<std::mt19937_64> Generator;  ///< made when first asked for: its state is large
};

}  // namespace qves
