#include "views/business/Bonds.h"

#include <cmath>

#include "engine/Numbers.h"
#include "engine/Operators.h"
#include "model/ArithmeticFault.h"

namespace qves {
namespace {

constexpr double CouponPeriod = 182.5;  // days
constexpr int CouponMonths = 6;
constexpr double PriceTolerance = 1e-5;
constexpr int MostHalvings = 200;

double OddFraction(const Bond& bond) {
  return bond.Coupons.DaysToNext / CouponPeriod;
}

/// Price and accrued interest together.
double FullPrice(const Bond& bond, double yield) {
  const double coupon = bond.AnnualCoupon / 2;
  const double fraction = OddFraction(bond);
  if (bond.Coupons.Count == 1) return Divide(bond.Redemption + coupon, 1 + fraction * yield / 2);
  // The coupons are a geometric series.
  const double logGrowth = std::log1p(yield / 2);
  const int last = bond.Coupons.Count - 1;
  const double series =
      yield == 0 ? bond.Coupons.Count : std::expm1(-bond.Coupons.Count * logGrowth) / std::expm1(-logGrowth);
  return bond.Redemption * std::exp(-(last + fraction) * logGrowth) +
         coupon * series * std::exp(-fraction * logGrowth);
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
  return (1 - OddFraction(bond)) * bond.AnnualCoupon / 2;
}

double BondPrice(const Bond& bond, double yield) {
  if (bond.Coupons.Count <= 0) throw ArithmeticFault("no coupon is left");
  return Checked(FullPrice(bond, yield) - AccruedInterest(bond));
}

double BondYield(const Bond& bond, double price) {
  if (BondPrice(bond, 0) < price) throw ArithmeticFault("a price that no yield reaches");
  double high = 1;
  while (BondPrice(bond, high) > price) high = Checked(2 * high);
  double low = 0;
  double middle = high * 0.5;
  for (int count = 1; count <= MostHalvings; ++count) {
    const double difference = BondPrice(bond, middle) - price;
    if (std::fabs(difference) < PriceTolerance) break;
    (difference > 0 ? low : high) = middle;
    middle = (low + high) * 0.5;
  }
  return middle;
}

}  // namespace qves
