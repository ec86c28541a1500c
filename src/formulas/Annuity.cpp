#include "formulas/Annuity.h"

#include <cmath>

#include "formulas/Growth.h"
#include "formulas/RootSearch.h"
#include "model/ArithmeticFault.h"

namespace qves {
namespace {

/// What a sum has become: nothing stays nothing, however long.
Real Become(Real sum, Real factor) {
  return sum == 0 ? 0 : sum * factor;
}

/// The payment as if it were due at the end of the period.
Real Due(Real rate, double payment, int timing) {
  return payment * (1 + rate * timing);
}

/// The three sums together, valued at the end for a rate below 0 and else at the start: of one sign with the
/// annuity's balance everywhere, and never beyond a double for a rate that is too far off.
template <class Number>
Number Balance(Number rate, Number periods, double payment, double presentValue, double futureValue,
               int timing) {
  const Number due = payment * (1 + rate * static_cast<Number>(timing));
  if (rate < 0)
    return presentValue * Growth(rate, periods) + due * PaymentsGrown(rate, periods) + futureValue;
  return presentValue + due * PaymentsDiscounted(rate, periods) + futureValue * Growth(rate, -periods);
}

}  // namespace

Real PresentValue(Real rate, double periods, double payment, double futureValue, int timing) {
  const Real length = periods;
  return -(Become(Due(rate, payment, timing), PaymentsDiscounted(rate, length)) +
           Become(futureValue, Growth(rate, -length)));
}

double rtcPV(double rate, double periods, double payment, double futureValue, int timing) {
  return Checked(PresentValue(rate, periods, payment, futureValue, timing));
}

double rtcFV(double rate, double periods, double payment, double presentValue, int timing) {
  const Real fraction = rate, length = periods;
  return Checked(-(Become(presentValue, Growth(fraction, length)) +
                   Become(Due(rate, payment, timing), PaymentsGrown(fraction, length))),
                 FaultReason::TooLarge);
}

double rtcPMT(double rate, double periods, double presentValue, double futureValue, int timing) {
  if (periods == 0) throw ArithmeticFault(FaultReason::NoSolution, "no periods");
  const Real fraction = rate, length = periods;
  const Real payment =
      -(presentValue / PaymentsDiscounted(fraction, length) + futureValue / PaymentsGrown(fraction, length));
  return Checked(payment / Due(rate, 1, timing), FaultReason::NoSolution);
}

double rtcNPer(double rate, double payment, double presentValue, double futureValue, int timing) {
  const Real fraction = rate;
  const Real sums = Real{presentValue} + futureValue;
  if (rate == 0) return Checked(-sums / payment, FaultReason::NoSolution);
  if (rate <= -1) throw ArithmeticFault(FaultReason::NoSolution, "a rate of -100 % or less");
  const Real due = Due(rate, payment, timing);
  const Real start = due + presentValue * fraction;
  const Real growth = -fraction * sums / start;
  // Each form keeps the digits where the other would lose them.
  const Real logarithm =
      std::fabs(growth) < 0.5 ? std::log1p(growth) : std::log((due - futureValue * fraction) / start);
  return Checked(logarithm / std::log1p(fraction), FaultReason::NoSolution);
}

Real rtcRate(double periods, double payment, double presentValue, double futureValue, int timing) {
  if (!(periods > 0)) throw ArithmeticFault(FaultReason::NoSolution, "no periods");
  if (payment == 0 && presentValue == 0 && futureValue == 0)
    throw ArithmeticFault(FaultReason::NoSolution, "no sums");
  return NearestRate(
      [&](double rate) { return Balance(rate, periods, payment, presentValue, futureValue, timing); },
      [&](Real rate) { return Balance(rate, Real{periods}, payment, presentValue, futureValue, timing); });
}

}  // namespace qves
