#include "formulas/Amortization.h"

#include <cmath>

#include "formulas/Growth.h"
#include "formulas/Numbers.h"
#include "model/ArithmeticFault.h"

namespace qves {
namespace {

/// The part of the loan that the first payments have repaid, by the one of two forms that stays finite.
Real RepaidShare(Real rate, Real periods, Real payments) {
  if (rate < 0) return PaymentsGrown(rate, payments) / PaymentsGrown(rate, periods);
  return PaymentsDiscounted(rate, payments) / PaymentsDiscounted(rate, periods) *
         Growth(rate, payments - periods);
}

/// What 0, 1, 2, ... payments less one have grown to, added up: by its binomial series, for a small rate.
Real GrownTogether(Real rate, Real payments) {
  Real sum = 0;
  Real term = payments * (payments - 1) / 2;
  for (int k = 3; sum + term != sum; ++k) {
    sum += term;
    term *= rate * (payments - k + 1) / k;
  }
  return sum;
}

/// What is still owed of a loan of 1 before each of its first payments, added up. Each form keeps the digits
/// where the others would lose them.
Real OwedTogether(Real rate, Real periods, Real payments) {
  const Real grown = PaymentsGrown(rate, periods);
  const Real repaid = RepaidShare(rate, periods, payments);
  if (rate * periods < -1) return (payments * Growth(rate, periods) / grown - repaid) / rate;
  if (std::fabs(rate * payments) < 0.1L) return payments - GrownTogether(rate, payments) / grown;
  return payments - (repaid - payments / grown) / rate;
}

}  // namespace

AmortizedPart Amortize(double rate, double periods, double loan, int payments) {
  if (payments < 0) throw ArithmeticFault(FaultReason::OutOfRange, "a negative number of payments");
  if (payments == 0) return {};
  if (payments > periods) throw ArithmeticFault(FaultReason::OutOfRange, "more payments than the loan has");
  return {Checked(loan * RepaidShare(rate, periods, payments)),
          Checked(Real{loan} * rate * OwedTogether(rate, periods, payments))};
}

}  // namespace qves
