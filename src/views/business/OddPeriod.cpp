#include "views/business/OddPeriod.h"

#include <cmath>

#include "engine/Numbers.h"
#include "engine/Operators.h"
#include "views/business/Annuity.h"

namespace qves {
namespace {

constexpr double FirstBound = 0.01;
constexpr double PriceTolerance = 0.00001;
constexpr int MostHalvings = 200;

double ValueAt(double rate, const OddPeriodProblem& p) {
  return OddPeriodDiscount(rtcPV(rate, p.WholePeriods, p.Payment, p.FutureValue, p.Timing), rate, p.Fraction,
                           p.Interest);
}

}  // namespace

double OddPeriodFactor(double rate, double fraction, int interest) {
  if (interest == OddPeriodInterest::Compound) return Checked(std::pow(1 + rate, fraction));
  return Checked(1 + fraction * rate);
}

double OddPeriodDiscount(double presentValue, double rate, double fraction, int interest) {
  return Divide(presentValue, OddPeriodFactor(rate, fraction, interest));
}

double SolveRateOdd(const OddPeriodProblem& p) {
  if (p.Payment == 0) {
    const double growth = Divide(-p.FutureValue, p.PresentValue);
    return Checked(std::pow(growth, 1 / (p.WholePeriods + p.Fraction))) - 1;
  }
  double low = 0, high = FirstBound;
  while (ValueAt(high, p) > p.PresentValue) {
    high = Checked(2 * high);
    Checked(std::pow(1 + high, p.WholePeriods));  // a bound that is never found ends here
  }
  double middle = (low + high) * 0.5;
  for (int k = 1; k <= MostHalvings; ++k) {
    const double difference = ValueAt(middle, p) - p.PresentValue;
    if (std::fabs(difference) < PriceTolerance) break;
    (difference < 0 ? high : low) = middle;
    middle = (low + high) * 0.5;
  }
  return middle;
}

}  // namespace qves
