#include "spreadsheet/InverseT.h"

#include <boost/math/distributions/students_t.hpp>
#include <cmath>
#include <exception>

namespace qves {

std::optional<double> InverseT::TInv(double alpha, double degreesOfFreedom) {
  const double degrees = std::trunc(degreesOfFreedom);
  if (!(degrees >= 1) || !(alpha > 0 && alpha < 1)) return std::nullopt;
  try {
    const boost::math::students_t_distribution<long double> distribution(degrees);
    // From the upper tail: one less alpha would lose the digits of a small one.
    const auto t = static_cast<double>(boost::math::quantile(complement(distribution, alpha / 2.0L)));
    return std::isfinite(t) ? std::optional(t) : std::nullopt;
  } catch (const std::exception&) {
    return std::nullopt;
  }
}

}  // namespace qves
