// Reliability of a test by Kuder and Richardson (1937), formulas 20 and 21. The variance and the deviation of
// the total scores are those of a sample, which is wanted. Everything here faults when a result is not
// finite.
#pragma once

#include <span>

namespace qves {

/// Formula 20, K / (K - 1) * (1 - sum of p (1 - p) / variance). `rightAnswers` tells, for each of the K items
/// of the test, two or more, how many examinees answered it correctly; p is their part of all.
double KR20(std::span<const double> rightAnswers, double examinees, double scoreVariance);

/// Formula 21, K / (K - 1) * (1 - M (K - M) / (K * variance)), which takes all of the K `items`, two or more,
/// as equally difficult. M is the mean of the scores.
double KR21(double items, double scoreMean, double scoreVariance);

/// The standard error of measurement; the reliability is at most 1.
double StandardErrorOfMeasurement(double scoreSD, double reliability);

}  // namespace qves
