#include "views/business/Annuity.h"

#include <cmath>

#include "engine/Numbers.h"
#include "engine/Operators.h"
#include "model/ArithmeticFault.h"
#include "views/business/RootSearch.h"

namespace qves {
namespace {

/// (1 + rate)^periods - 1, also for a small rate without a loss of digits.
double GrowthLessOne(double rate, double periods) {
  if (rate > -1) return Checked(std::expm1(periods * std::log1p(rate)));
  return Checked(std::pow(1 + rate, periods)) - 1;
}

/// What payments of 1 have grown to at the end.
double PaymentsGrown(double rate, double periods, int timing) {
  if (rate == 0) return periods;
  return (1 + rate * timing) * GrowthLessOne(rate, periods) / rate;
}

/// The three sums together, valued at the end for a rate below 0 and else at the start: of one sign with the
/// annuity's balance everywhere, and never beyond a double for a rate that is too far off.
double Balance(double rate, double periods, double payment, double presentValue, double futureValue,
               int timing) {
  if (rate < 0)
    return presentValue * std::pow(1 + rate, periods) + payment * PaymentsGrown(rate, periods, timing) +
           futureValue;
  const double shrunk = GrowthLessOne(rate, -periods);
  const double payments = rate == 0 ? periods : -(1 + rate * timing) * shrunk / rate;
  return presentValue + payment * payments + futureValue * (1 + shrunk);
}

}  // namespace

double rtcFV(double rate, double periods, double payment, double presentValue, int timing) {
  const double growth = 1 + GrowthLessOne(rate, periods);
  return Checked(-(presentValue * growth + payment * PaymentsGrown(rate, periods, timing)));
}

double rtcPV(double rate, double periods, double payment, double futureValue, int timing) {
  const double growth = 1 + GrowthLessOne(rate, periods);
  return Divide(-(futureValue + payment * PaymentsGrown(rate, periods, timing)), growth);
}

double rtcPMT(double rate, double periods, double presentValue, double futureValue, int timing) {
  const double growth = 1 + GrowthLessOne(rate, periods);
  return Divide(-(futureValue + presentValue * growth), PaymentsGrown(rate, periods, timing));
}

double rtcNPer(double rate, double payment, double presentValue, double futureValue, int timing) {
  if (rate == 0) return Divide(-(presentValue + futureValue), payment);
  if (rate <= -1) throw ArithmeticFault("a rate of -100 % or less");
  const double due = payment * (1 + rate * timing);
  const double ratio = Divide(due - futureValue * rate, due + presentValue * rate);
  return Checked(std::log(ratio)) / std::log1p(rate);
}

double rtcRate(double periods, double payment, double presentValue, double futureValue, int timing) {
  if (!(periods > 0)) throw ArithmeticFault("no periods");
  return NearestRate(
      [&](double rate) { return Balance(rate, periods, payment, presentValue, futureValue, timing); });
}

double rtcIPMT(double rate, double period, double periods, double presentValue) {
  if (!(period >= 1 && period <= periods)) throw ArithmeticFault("a period outside the loan");
  const double payment = rtcPMT(rate, periods, presentValue, 0, 0);
  return Checked(rtcFV(rate, period - 1, payment, presentValue, 0) * rate);
}

double rtcPPMT(double rate, double period, double periods, double presentValue) {
  return rtcPMT(rate, periods, presentValue, 0, 0) - rtcIPMT(rate, period, periods, presentValue);
}

}  // namespace qves
