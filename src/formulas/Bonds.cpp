#include "formulas/Bonds.h"

#include "formulas/Growth.h"
#include "formulas/Numbers.h"
#include "formulas/RootSearch.h"
#include "model/ArithmeticFault.h"

namespace qves {
namespace {

constexpr double CouponPeriod = 182.5;  // days
constexpr int CouponMonths = 6;

Real OddFraction(const Bond& bond) {
  return bond.Coupons.DaysToNext / Real{CouponPeriod};
}

Real Accrued(const Bond& bond) {
  return (1 - OddFraction(bond)) * bond.AnnualCoupon / 2;
}

/// Price and accrued interest together. The coupons are an annuity, valued one period before the next of
/// them.
Real FullPrice(const Bond& bond, Real yield) {
  const Real coupon = Real{bond.AnnualCoupon} / 2;
  const Real fraction = OddFraction(bond);
  if (bond.Coupons.Count == 1) return (bond.Redemption + coupon) / (1 + fraction * yield / 2);
  const Real rate = yield / 2;
  const Real count = bond.Coupons.Count;
  return bond.Redemption * Growth(rate, 1 - count - fraction) +
         coupon * PaymentsDiscounted(rate, count) * Growth(rate, 1 - fraction);
}

}  // namespace

CouponDates FindCoupons(DayNumber settlement, DayNumber maturity) {
  CouponDates coupons;
  DayNumber next = maturity;
  for (DayNumber coupon = maturity; coupon > settlement;
       coupon = AddMonths(maturity, -CouponMonths * coupons.Count)) {
    next = coupon;
    ++coupons.Count;
  }
  coupons.DaysToNext = next - settlement;
  return coupons;
}

double AccruedInterest(const Bond& bond) {
  return Checked(Accrued(bond));
}

double BondPrice(const Bond& bond, double yield) {
  if (bond.Coupons.Count <= 0) throw ArithmeticFault(FaultReason::NoSolution, "no coupon is left");
  return Checked(FullPrice(bond, yield) - Accrued(bond));
}

double BondYield(const Bond& bond, double price) {
  if (BondPrice(bond, 0) < price)
    throw ArithmeticFault(FaultReason::NoSolution, "a price that no yield reaches");
  double high = 1;
  while (BondPrice(bond, high) > price) high = Checked(2 * high, FaultReason::NoSolution);
  return Halve([&](double yield) { return BondPrice(bond, yield) - price; }, high);
}

}  // namespace qves
