// Percent functions and simple interest.
#pragma once

namespace qves {

/// The smaller number as a percentage of the larger, whichever comes first: this is wanted. Faults for a
/// division by zero.
double PercentOfTotal(double first, double second);
/// How many percent the second is above the first. Faults when the first is 0.
double PercentDifference(double first, double second);

/// Interest received on a sum paid out: -presentValue x rate x days / basis. The rate is a fraction a year,
/// the basis the days of a year.
double SimpleInterest(double presentValue, double rate, double days, int basis);

}  // namespace qves
