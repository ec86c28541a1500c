// Uneven cash flows: net present value and internal rate of return, as in the ODF OpenFormula standard,
// section 6.12.
#pragma once

#include <span>

#include "formulas/Numbers.h"

namespace qves {

/// The first flow, which is today's, and what the others are worth today: the first of them is discounted
/// over one period, the next over two. The rate is a fraction a period. Faults for a rate of -1 and when
/// there is no finite result.
double rtcNPV(double rate, double first, std::span<const double> flows);

/// The rate nearest to 10 % a period at which the flows, the first of them today, are worth nothing together.
/// A fraction above -1. Faults unless there are both a flow above 0 and one below, and when there is no rate.
Real rtcIRR(std::span<const double> flows);

}  // namespace qves
