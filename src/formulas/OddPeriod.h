// A fraction of a period before the whole ones: its interest, and the present value and the rate of a problem
// that has one.
#pragma once

#include "formulas/Numbers.h"

namespace qves {

/// How interest runs over the odd period; the list index of the choice.
struct OddPeriodInterest {
  enum : int { Compound = 0, Simple = 1 };
};

/// A problem with a number of periods that is not whole. The signs and the timing are those of Annuity.h.
struct OddPeriodProblem {
  int WholePeriods = 0;
  double Fraction = 0;
  double Payment = 0;
  double PresentValue = 0;
  double FutureValue = 0;
  int Timing = 0;
  int Interest = OddPeriodInterest::Compound;
};

/// What a sum grows to over that fraction of a period: by (1 + rate)^fraction, or by 1 + fraction x rate.
double OddPeriodGrown(double sum, double rate, double fraction, int interest);
/// The present value that the problem's other sums give, at the start of the odd period.
double OddPeriodPV(double rate, const OddPeriodProblem& problem);
/// The rate a period, as a fraction: without payments in closed form, else by halving between 0 and a bound.
/// Faults when no bound is found.
Real SolveRateOdd(const OddPeriodProblem& problem);

}  // namespace qves
