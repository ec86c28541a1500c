#include "formulas/OddPeriod.h"

#include <cmath>

#include "formulas/Annuity.h"
#include "formulas/Growth.h"
#include "formulas/RootSearch.h"
#include "model/ArithmeticFault.h"

namespace qves {
namespace {

constexpr double FirstBound = 0.01;

Real Factor(Real rate, Real fraction, int interest) {
  return interest == OddPeriodInterest::Compound ? Growth(rate, fraction) : 1 + fraction * rate;
}

}  // namespace

double OddPeriodGrown(double sum, double rate, double fraction, int interest) {
  return Checked(sum * Factor(rate, fraction, interest));
}

double OddPeriodPV(double rate, const OddPeriodProblem& p) {
  return Checked(PresentValue(rate, p.WholePeriods, p.Payment, p.FutureValue, p.Timing) /
                     Factor(rate, p.Fraction, p.Interest),
                 rate > -1 ? FaultReason::TooLarge : FaultReason::NoSolution);
}

Real SolveRateOdd(const OddPeriodProblem& p) {
  if (p.Payment == 0) {
    if (p.PresentValue == 0) throw ArithmeticFault(FaultReason::NoSolution, "no sum that grows");
    const Real gain = -(Real{p.FutureValue} + p.PresentValue) / p.PresentValue;
    return GrowthLessOne(gain, 1 / (p.WholePeriods + Real{p.Fraction}));
  }
  double high = FirstBound;
  while (OddPeriodPV(high, p) > p.PresentValue) {
    high = Checked(2 * high, FaultReason::NoSolution);
    Checked(Growth<double>(high, p.WholePeriods),
            FaultReason::NoSolution);  // a bound that is never found ends here
  }
  return Halve([&](double rate) { return OddPeriodPV(rate, p) - p.PresentValue; }, high);
}

}  // namespace qves
