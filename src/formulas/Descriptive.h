// Descriptive statistics of one set of numbers. Everything here faults when a result is not finite.
#pragma once

#include <span>
#include <vector>

namespace qves {

struct Sums {
  double Count = 0;
  double Sum = 0;
  double SumSq = 0;  ///< of the squares

  double Mean() const;
  /// The sum of the squared deviations by the one-pass formula, SumSq - Sum^2 / Count. It loses digits where
  /// the numbers are large beside their spread, down to values below 0: it is wanted as it is.
  double SS() const;
};

/// The sums of the numbers, added up in their order.
Sums SumUp(std::span<const double> values);

struct Dispersion {
  double Variance = 0;
  double SD = 0;  ///< the square root of the absolute value of the variance
};

/// By the sum of squared deviations and what it is divided by: the count (of a population) or one less (of a
/// sample).
Dispersion DispersionOf(double ss, double divisor);

/// Of numbers in ascending order; faults when there are none.
double Median(std::span<const double> sorted);

/// The values that stand most often among numbers in ascending order; none when no value repeats.
std::vector<double> Modes(std::span<const double> sorted);

}  // namespace qves
