// A fraction of a period before the whole ones: its interest, and the rate of a problem that has one.
#pragma once

namespace qves {

/// How interest runs over the odd period; the list index of the choice.
struct OddPeriodInterest {
  enum : int { Compound = 0, Simple = 1 };
};

/// What 1 grows to over that fraction of a period: (1 + rate)^fraction, or 1 + fraction x rate.
double OddPeriodFactor(double rate, double fraction, int interest);
/// The value at the start of the odd period of a value at its end.
double OddPeriodDiscount(double presentValue, double rate, double fraction, int interest);

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

/// The rate a period, as a fraction: without payments in closed form, else by halving between 0 and a bound,
/// to 0.00001 of the present value or for 200 halvings. Faults when no bound is found.
double SolveRateOdd(const OddPeriodProblem& problem);

}  // namespace qves
