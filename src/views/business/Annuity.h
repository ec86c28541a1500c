// Annuities: one sum at the start, equal payments, one sum at the end. Money received is positive, money paid
// out negative. A rate is a fraction a period, a timing 0 for payments at the end of each period and 1 for
// payments at its beginning. The formulas are the standard ones of financial mathematics (as in the ODF
// OpenFormula standard, section 6.12), written so that a small rate loses no digits. All fault when there is
// no finite result.
#pragma once

namespace qves {

double rtcPV(double rate, double periods, double payment, double futureValue, int timing);
double rtcFV(double rate, double periods, double payment, double presentValue, int timing);
/// Faults for 0 periods.
double rtcPMT(double rate, double periods, double presentValue, double futureValue, int timing);
/// The number of periods, with its fraction.
double rtcNPer(double rate, double payment, double presentValue, double futureValue, int timing);
/// The rate nearest to 10 % a period that solves the annuity; above -100 %. Faults when there is none,
/// when all sums are 0, and when `periods` is not above 0.
double rtcRate(double periods, double payment, double presentValue, double futureValue, int timing);

/// The interest and the principal in the payment of a period, from 1 to `periods`, of a loan repaid by
/// payments at the end of each period. Faults for a period outside.
double rtcIPMT(double rate, double period, double periods, double presentValue);
double rtcPPMT(double rate, double period, double periods, double presentValue);

}  // namespace qves
