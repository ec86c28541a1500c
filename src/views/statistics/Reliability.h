// Reliability of a test by Kuder and Richardson (1937), formulas 20 and 21. The variance and the deviation of
// the total scores are those of a sample, which is wanted. Everything here faults when a result is not
// finite.
#pragma once

#include <span>

namespace qves {

/// Formula 20. `rightAnswers` tells, for each item of the test, how many examinees answered it correctly.
double KR20(std::span<const double> rightAnswers, double examinees, double scoreVariance);

/// Formula 21, which takes all of the `items` as equally difficult.
double KR21(double items, double scoreMean, double scoreVariance);

/// The standard error of measurement; the reliability is at most 1.
double StandardErrorOfMeasurement(double scoreSD, double reliability);

}  // namespace qves
