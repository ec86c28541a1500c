// Bonds with two coupons a year: price from yield, and yield from price. The price is that of the Securities
// Industry Association's standard formulas, with coupon periods of 182.5 days whatever the calendar gives:
// this is wanted.
#pragma once

#include "formulas/Dates.h"

namespace qves {

/// The coupons that a buyer still gets.
struct CouponDates {
  int Count = 0;          ///< coupons after settlement, up to and including maturity
  double DaysToNext = 0;  ///< from settlement to the next coupon
};

/// Coupons fall due at maturity and every six months before, each on the maturity's day of the month or on
/// the month's last. None are left when settlement is not before maturity.
CouponDates FindCoupons(DayNumber settlement, DayNumber maturity);

struct Bond {
  CouponDates Coupons;
  double AnnualCoupon = 0;  ///< percent of par
  double Redemption = 0;
};

/// Of the bond, in what its buyer pays on top of the price; percent of par.
double AccruedInterest(const Bond& bond);
/// The price without accrued interest, percent of par, for a yearly yield as a fraction. Faults without a
/// coupon left.
double BondPrice(const Bond& bond, double yield);
/// The yearly yield, a fraction, at which the bond has that price: by halving. Faults when the price is above
/// that of a yield of 0, and when no yield brings the price down to it.
double BondYield(const Bond& bond, double price);

}  // namespace qves
