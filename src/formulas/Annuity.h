// Annuities: one sum at the start, equal payments, one sum at the end. Money received is positive, money paid
// out negative. A rate is a fraction a period, a timing 0 for payments at the end of each period and 1 for
// payments at its beginning. The formulas are the standard ones of financial mathematics (as in the ODF
// OpenFormula standard, section 6.12). All fault when there is no finite result.
#pragma once

#include "formulas/Numbers.h"

namespace qves {

double rtcPV(double rate, double periods, double payment, double futureValue, int timing);
double rtcFV(double rate, double periods, double payment, double presentValue, int timing);
/// Faults for 0 periods.
double rtcPMT(double rate, double periods, double presentValue, double futureValue, int timing);
/// The number of periods, with its fraction.
double rtcNPer(double rate, double payment, double presentValue, double futureValue, int timing);
/// The rate nearest to 10 % a period that solves the annuity; above -100 %. Faults when there is none,
/// when all sums are 0, and when `periods` is not above 0.
Real rtcRate(double periods, double payment, double presentValue, double futureValue, int timing);

/// As rtcPV, not yet rounded.
Real PresentValue(Real rate, double periods, double payment, double futureValue, int timing);

}  // namespace qves
