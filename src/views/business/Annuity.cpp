#include "views/business/Annuity.h"

#include <cmath>

#include "engine/Numbers.h"
#include "engine/Operators.h"
#include "model/ArithmeticFault.h"
#include "views/business/RootSearch.h"

namespace qves {
namespace {

/// (1 + rate)^periods - 1, also for a small rate without a loss of digits. It may be infinite.
double GrowthLessOne(double rate, double periods) {
  if (rate > -1) return std::expm1(periods * std::log1p(rate));
  return std::pow(1 + rate, periods) - 1;
}

double Growth(double rate, double periods) {
  if (rate > -1) return std::exp(periods * std::log1p(rate));
  return std::pow(1 + rate, periods);
}

/// What payments of 1 at the end of each period have grown to at the end, and what they are worth at the
/// start.
double PaymentsGrown(double rate, double periods) {
  return rate == 0 ? periods : GrowthLessOne(rate, periods) / rate;
}
double PaymentsDiscounted(double rate, double periods) {
  return rate == 0 ? periods : -GrowthLessOne(rate, -periods) / rate;
}

/// The three sums together, valued at the end for a rate below 0 and else at the start: of one sign with the
/// annuity's balance everywhere, and never beyond a double for a rate that is too far off.
double Balance(double rate, double periods, double payment, double presentValue, double futureValue,
               int timing) {
  const double due = payment * (1 + rate * timing);
  if (rate < 0)
    return presentValue * Growth(rate, periods) + due * PaymentsGrown(rate, periods) + futureValue;
  return presentValue + due * PaymentsDiscounted(rate, periods) + futureValue * Growth(rate, -periods);
}

void CheckPeriod(double period, double periods) {
  if (!(period >= 1 && period <= periods)) throw ArithmeticFault("a period outside the loan");
}

}  // namespace

double rtcFV(double rate, double periods, double payment, double presentValue, int timing) {
  const double due = payment * (1 + rate * timing);
  return Checked(-(presentValue * Growth(rate, periods) + due * PaymentsGrown(rate, periods)));
}

double rtcPV(double rate, double periods, double payment, double futureValue, int timing) {
  const double due = payment * (1 + rate * timing);
  return Checked(-(due * PaymentsDiscounted(rate, periods) + futureValue * Growth(rate, -periods)));
}

double rtcPMT(double rate, double periods, double presentValue, double futureValue, int timing) {
  if (periods == 0) throw ArithmeticFault("no periods");
  const double payment =
      -(presentValue / PaymentsDiscounted(rate, periods) + futureValue / PaymentsGrown(rate, periods));
  return Divide(payment, 1 + rate * timing);
}

double rtcNPer(double rate, double payment, double presentValue, double futureValue, int timing) {
  if (rate == 0) return Divide(-(presentValue + futureValue), payment);
  if (rate <= -1) throw ArithmeticFault("a rate of -100 % or less");
  const double due = payment * (1 + rate * timing);
  const double start = due + presentValue * rate;
  const double growth = Divide(-rate * (presentValue + futureValue), start);
  // Each form keeps the digits where the other would lose them.
  const double logarithm =
      std::fabs(growth) < 0.5 ? std::log1p(growth) : std::log((due - futureValue * rate) / start);
  return Checked(logarithm) / std::log1p(rate);
}

double rtcRate(double periods, double payment, double presentValue, double futureValue, int timing) {
  if (!(periods > 0)) throw ArithmeticFault("no periods");
  if (payment == 0 && presentValue == 0 && futureValue == 0) throw ArithmeticFault("no sums");
  return NearestRate(
      [&](double rate) { return Balance(rate, periods, payment, presentValue, futureValue, timing); });
}

// Both through what the payments still due are worth: the balance before a payment is all of them discounted.
// For a rate below 0 numerator and denominator are both valued at the end, where they stay finite.

double rtcIPMT(double rate, double period, double periods, double presentValue) {
  CheckPeriod(period, periods);
  const double left = periods - period + 1;
  const double share =
      rate < 0 ? PaymentsGrown(rate, left) / PaymentsGrown(rate, periods) * Growth(rate, period - 1)
               : PaymentsDiscounted(rate, left) / PaymentsDiscounted(rate, periods);
  return Checked(-presentValue * share * rate);
}

double rtcPPMT(double rate, double period, double periods, double presentValue) {
  CheckPeriod(period, periods);
  const double share = rate < 0 ? Growth(rate, period - 1) / PaymentsGrown(rate, periods)
                                : Growth(rate, period - periods - 1) / PaymentsDiscounted(rate, periods);
  return Checked(-presentValue * share);
}

}  // namespace qves
