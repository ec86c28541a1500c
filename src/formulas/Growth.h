// What a sum and what equal payments grow to: annuities, loans and bonds are made of it. Written so that a
// small rate loses no digits; a result may be infinite.
#pragma once

#include <cmath>

namespace qves {

/// (1 + rate)^periods - 1.
template <class Number>
Number GrowthLessOne(Number rate, Number periods) {
  if (rate > -1) return std::expm1(periods * std::log1p(rate));
  return std::pow(1 + rate, periods) - 1;
}

template <class Number>
Number Growth(Number rate, Number periods) {
  if (rate > -1) return std::exp(periods * std::log1p(rate));
  return std::pow(1 + rate, periods);
}

/// What payments of 1 at the end of each period have grown to at the end.
template <class Number>
Number PaymentsGrown(Number rate, Number periods) {
  return rate == 0 ? periods : GrowthLessOne(rate, periods) / rate;
}

/// What they are worth at the start.
template <class Number>
Number PaymentsDiscounted(Number rate, Number periods) {
  return rate == 0 ? periods : -GrowthLessOne(rate, -periods) / rate;
}

}  // namespace qves
