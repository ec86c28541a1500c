// Student's t statistics (Student, 1908). Everything here faults when a result is not finite.
#pragma once

#include <span>

#include "formulas/Descriptive.h"

namespace qves {

/// Of two independent samples, with their pooled variance: the first mean less the second one, over its
/// standard error. 0 when that error is 0. Each sample has two numbers or more.
double TwoSampleT(const Sums& first, const Sums& second);

/// Of the differences of pairs, second less first; 0 when all differences are the same. Both have the same
/// number of numbers, two or more.
double PairedT(std::span<const double> first, std::span<const double> second);

}  // namespace qves
