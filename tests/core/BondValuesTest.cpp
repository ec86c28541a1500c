// Bonds and odd periods against references. The references were computed with the spreadsheet
// Gnumeric 1.12.55 and again with mpmath 1.3.0 at 60 digits from the double nearest to each argument; the two
// agree to 11 digits. The price is Gnumeric's PRICE with basis 3, whose coupon period is 182.5 days, with the
// accrued interest of the days since the last coupon put back and that of the rest of 182.5 days taken off
// (for yields that are not above 0 mpmath's alone). Coupon dates: COUPNUM and COUPNCD without the rule of
// month ends, checked by EDATE. Odd periods: PV, FV with a fraction of a period, RRI.
#include <gtest/gtest.h>

#include <cmath>

#include "views/business/Annuity.h"
#include "views/business/Bonds.h"
#include "views/business/OddPeriod.h"

namespace qves {
namespace {

constexpr int Compound = OddPeriodInterest::Compound;
constexpr int Simple = OddPeriodInterest::Simple;

double Tolerance(double reference) {
  return 1e-9 * std::abs(reference) + 1e-13;
}

struct CouponCase {
  Date Settlement;
  Date Maturity;
  int Count;
  double DaysToNext;
};

constexpr CouponCase CouponCases[] = {
    {{2004, 4, 28}, {2018, 6, 4}, 29, 37},      {{2024, 1, 15}, {2034, 1, 15}, 20, 182},
    {{2024, 1, 14}, {2034, 1, 15}, 21, 1},      {{2024, 1, 16}, {2034, 1, 15}, 20, 181},
    {{2024, 1, 15}, {2024, 7, 15}, 1, 182},     {{2024, 7, 14}, {2024, 7, 15}, 1, 1},
    {{2024, 7, 15}, {2024, 7, 15}, 0, 0},       {{2024, 7, 16}, {2024, 7, 15}, 0, 0},
    {{2024, 1, 31}, {2024, 8, 31}, 2, 29},      {{2024, 2, 28}, {2024, 8, 31}, 2, 1},
    {{2024, 2, 29}, {2024, 8, 31}, 1, 184},     {{2024, 3, 1}, {2024, 8, 31}, 1, 183},
    {{2023, 2, 27}, {2024, 8, 31}, 4, 1},       {{2023, 2, 28}, {2024, 8, 31}, 3, 184},
    {{2023, 2, 28}, {2030, 8, 29}, 15, 182},    {{2023, 2, 28}, {2030, 8, 28}, 15, 181},
    {{2024, 2, 28}, {2030, 8, 30}, 14, 1},      {{2024, 2, 29}, {2030, 8, 30}, 13, 183},
    {{2023, 8, 30}, {2030, 2, 28}, 13, 182},    {{2023, 8, 28}, {2030, 2, 28}, 13, 184},
    {{2023, 8, 27}, {2030, 2, 28}, 14, 1},      {{2023, 8, 28}, {2032, 2, 29}, 18, 1},
    {{2023, 8, 29}, {2032, 2, 29}, 17, 184},    {{2024, 9, 29}, {2026, 3, 31}, 4, 1},
    {{2024, 9, 30}, {2026, 3, 31}, 3, 182},     {{2024, 9, 30}, {2026, 9, 30}, 4, 181},
    {{2025, 3, 30}, {2026, 9, 30}, 3, 184},     {{2025, 3, 31}, {2026, 9, 30}, 3, 183},
    {{2025, 11, 30}, {2026, 5, 31}, 1, 182},    {{2025, 12, 31}, {2026, 6, 30}, 1, 181},
    {{2026, 1, 1}, {2026, 6, 30}, 1, 180},      {{2100, 2, 28}, {2110, 8, 31}, 21, 184},
    {{2000, 2, 28}, {2010, 8, 31}, 22, 1},      {{2000, 2, 29}, {2010, 8, 31}, 21, 184},
    {{1999, 12, 31}, {2099, 12, 31}, 200, 182}, {{2024, 3, 1}, {2054, 2, 15}, 60, 167},
};

TEST(BondValues, CouponDates) {
  for (const CouponCase& row : CouponCases) {
    const CouponDates coupons = FindCoupons(ToDayNumber(row.Settlement), ToDayNumber(row.Maturity));
    const auto& [year, month, day] = row.Settlement;
    EXPECT_EQ(coupons.Count, row.Count) << year << "-" << month << "-" << day;
    if (row.Count == 0) continue;
    EXPECT_EQ(coupons.DaysToNext, row.DaysToNext) << year << "-" << month << "-" << day;
  }
}

/// The tolerance is the change of the yield that moves the price by 0.00001; 0: no yield is searched.
struct BondCase {
  Bond TheBond;
  double Yield;
  double Price;
  double Accrued;
  double YieldTolerance;
};

constexpr BondCase BondCases[] = {
    {{{29, 37}, 6.75, 100}, 0.08, 89.5335780616711, 2.69075342465753, 1.4e-8},
    {{{29, 37}, 6.75, 100}, 0.0825, 87.6219528877487, 2.69075342465753, 1.4e-8},
    {{{26, 90}, 5.75, 100}, 0.065, 93.5556428126768, 1.45719178082192, 1.3e-8},
    {{{20, 182}, 4, 100}, 0.04, 99.9999460724629, 0.00547945205479452, 1.3e-8},
    {{{20, 184}, 4, 100}, 0.04, 100.000163548631, -0.0164383561643836, 1.3e-8},
    {{{21, 1}, 4, 100}, 0.03, 108.586257036807, 1.98904109589041, 1.2e-8},
    {{{20, 181}, 4, 100}, 0.05, 92.2076957646544, 0.0164383561643836, 1.4e-8},
    {{{1, 106}, 5, 100}, 0.05, 99.9850010543099, 1.04794520547945, 3.7e-7},
    {{{1, 182}, 5, 100}, 0.05, 99.9998333900906, 0.00684931506849315, 2.2e-7},
    {{{1, 184}, 5, 100}, 0.2, 93.1327928431647, -0.0205479452054795, 2.5e-7},
    {{{1, 1}, 5, 100}, 0.05, 99.9996594574209, 2.48630136986301, 3.8e-5},
    {{{1, 106}, 0, 100}, 0.05, 98.5687280583311, 0, 3.8e-7},
    {{{61, 106}, 0, 100}, 0.05, 22.4047148248642, 0, 1.6e-8},
    {{{61, 106}, 8, 100}, 0.045, 157.562647196418, 1.67671232876712, 4.6e-9},
    {{{81, 106}, 3.125, 100}, 0.0375, 87.060182449614, 0.654965753424658, 5.7e-9},
    {{{31, 106}, 7, 105}, 0.06, 111.929386436715, 1.46712328767123, 9.8e-9},
    {{{31, 106}, 7, 50}, 0.06, 89.6558176837041, 1.46712328767123, 1.4e-8},
    {{{11, 19}, 5, 100}, 0.0001, 125.202750710294, 2.23972602739726, 1.8e-8},
    {{{11, 19}, 5, 100}, 1e-9, 125.260273397216, 2.23972602739726, 1.8e-8},
    {{{11, 19}, 5, 100}, 0.5, 19.4149923138409, 2.23972602739726, 1.9e-7},
    {{{11, 19}, 5, 100}, 3, 1.55720564747445, 2.23972602739726, 1.8e-5},
    {{{21, 172}, 12.5, 100}, 0.15, 86.9862440378753, 0.35958904109589, 2.3e-8},
    {{{21, 172}, 0.25, 100}, 0.01, 92.5613751510286, 0.00719178082191781, 1.1e-8},
    {{{100, 184}, 4.5, 100}, 0.042, 106.249284738674, -0.0184931506849315, 4.8e-9},
    {{{11, 19}, 5, 100}, 0, 125.260273972603, 2.23972602739726, 0},
    {{{1, 106}, 5, 100}, 0, 101.452054794521, 1.04794520547945, 0},
    {{{11, 19}, 5, 100}, -0.01, 131.171648951492, 2.23972602739726, 0},
    {{{1, 106}, 5, 100}, -0.01, 101.750593015106, 1.04794520547945, 0},
};

TEST(BondValues, PriceAccruedInterestAndYield) {
  for (const auto& [bond, yield, price, accrued, tolerance] : BondCases) {
    EXPECT_NEAR(BondPrice(bond, yield), price, Tolerance(price)) << bond.Coupons.Count << ", " << yield;
    EXPECT_NEAR(AccruedInterest(bond), accrued, Tolerance(accrued)) << bond.Coupons.DaysToNext;
    if (tolerance == 0) continue;
    EXPECT_NEAR(BondYield(bond, price), yield, tolerance) << bond.Coupons.Count << ", " << yield;
  }
}

struct OddPeriodCase {
  double Rate;
  double Fraction;
  int Interest;
  double Factor;
};

constexpr OddPeriodCase OddPeriodCases[] = {
    {0.1, 0.5, Compound, 1.04880884817015},
    {0.1, 0.5, Simple, 1.05},
    {0.1, 0, Compound, 1},
    {0.1, 0, Simple, 1},
    {0, 0.5, Compound, 1},
    {0, 0.5, Simple, 1},
    {0.01, 0.25, Compound, 1.00249067931432},
    {0.01, 0.25, Simple, 1.0025},
    {0.01, 0.999, Compound, 1.00998995021584},
    {0.01, 0.999, Simple, 1.00999},
    {1e-12, 0.5, Compound, 1.0000000000005},
    {1e-9, 0.75, Simple, 1.00000000075},
    {0.05 / 12, 0.1, Compound, 1.00041588747209},
    {0.05 / 12, 0.1, Simple, 1.00041666666667},
    {1, 0.5, Compound, 1.4142135623731},
    {10, 0.3, Compound, 2.05313641365884},
    {10, 0.3, Simple, 4},
    {1000, 0.001, Compound, 1.00693267528085},
    {-0.1, 0.5, Compound, 0.948683298050514},
    {-0.1, 0.5, Simple, 0.95},
    {-0.9, 0.2, Compound, 0.630957344480193},
    {-0.9, 0.2, Simple, 0.82},
    {0.08, -0.5, Compound, 0.962250448649376},
    {0.08, -0.5, Simple, 0.96},
};

TEST(OddPeriodValues, FactorAndDiscount) {
  for (const auto& [rate, fraction, interest, factor] : OddPeriodCases) {
    EXPECT_NEAR(OddPeriodFactor(rate, fraction, interest), factor, Tolerance(factor))
        << rate << ", " << fraction << ", " << interest;
    EXPECT_NEAR(OddPeriodDiscount(1000 * factor, rate, fraction, interest), 1000, 1e-6)
        << rate << ", " << fraction << ", " << interest;
  }
}

/// The tolerance of a searched rate is the change that moves the present value by 0.00001.
struct OddRateCase {
  OddPeriodProblem Problem;
  double Rate;
  double Tolerance;
};

constexpr OddRateCase OddRateCases[] = {
    {{10, 0.5, -100, 753.56416806807, 0, 0, Compound}, 0.05, 2.6e-9},
    {{10, 0.5, -100, 753.339993091201, 0, 0, Simple}, 0.05, 2.6e-9},
    {{10, 0.5, -100, 791.242376471473, 0, 1, Compound}, 0.05, 3.1e-9},
    {{10, 0.5, -100, 791.006992745761, 0, 1, Simple}, 0.05, 3.1e-9},
    {{1, 0.25, -1000, 887.685536069373, 0, 0, Compound}, 0.1, 1.1e-8},
    {{1, 0.25, -1000, 886.917960088692, 0, 0, Simple}, 0.1, 1.0e-8},
    {{12, 0.1, -90, 995.900149241391, 0, 0, Compound}, 0.0125, 1.7e-9},
    {{36, 0.9, -350, 12534.0704044562, -1000, 0, Simple}, 0.004, 4.2e-11},
    {{36, 0.9, -350, 12580.7635801619, -1000, 1, Compound}, 0.004, 4.4e-11},
    {{360, 0.5, -599.55, 99750.8462378478, 0, 0, Compound}, 0.005, 8.2e-13},
    {{360, 0.5, -599.55, 99750.5360687527, 0, 0, Simple}, 0.005, 8.2e-13},
    {{480, 0.75, -1000, 255561.724892361, -5000, 1, Simple}, 0.003, 2.2e-13},
    {{24, 0.99, -100, 2396.76531859808, 0, 0, Compound}, 0.0001, 3.3e-10},
    {{24, 0.01, -100, 1891.01805196882, 0, 0, Compound}, 0.02, 4.9e-10},
    {{5, 0.5, -1000, 5336.22417568078, -10000, 0, Compound}, 0.25, 5.6e-10},
    {{5, 0.5, -1000, 5303.18222222222, -10000, 0, Simple}, 0.25, 5.6e-10},
    {{3, 0.4, -100, 31.0263784989048, 0, 0, Compound}, 2, 5.7e-7},
    {{3, 0.4, -100, 26.7489711934156, 0, 0, Simple}, 2, 5.8e-7},
    {{20, 0.125, -1, 10.5047949700645, 0, 0, Compound}, 0.07, 1.3e-7},
    {{20, 0.125, -1, 24.0461416440106, -50, 1, Simple}, 0.07, 3.3e-8},
    {{2, 0.5, -5000, 4971.63090294344, 4000, 0, Compound}, 0.12, 1.4e-9},
    {{10, 0.5, 0, -1000, 2000, 0, Compound}, 0.0682416908144022, 1e-9},
    {{10, 0.5, 0, 1000, -2000, 0, Compound}, 0.0682416908144022, 1e-9},
    {{1, 0.5, 0, -1000, 1100, 0, Compound}, 0.0656022367666107, 1e-9},
    {{0, 0.5, 0, -1000, 1100, 0, Compound}, 0.21, 1e-9},
    {{0, 0.25, 0, -1000, 1001, 0, Compound}, 0.004006004001, 1e-9},
    {{30, 0.75, 0, -1000, 1000, 0, Compound}, 0, 1e-9},
    {{30, 0.75, 0, -1000, 900, 0, Compound}, -0.00342049496586776, 1e-9},
    {{5, 0.1, 0, -1, 1e6, 0, Compound}, 14.0131072890817, 1e-9},
    {{360, 0.999, 0, -100, 100.01, 0, Compound}, 2.76995266420211e-07, 1e-9},
    {{12, 0.3333, 0, -5000, 5000.5, 0, Compound}, 8.10775751018527e-06, 1e-9},
};

TEST(OddPeriodValues, Rate) {
  for (const auto& [problem, expected, tolerance] : OddRateCases) {
    const double rate = SolveRateOdd(problem);
    EXPECT_NEAR(rate, expected, tolerance) << problem.WholePeriods << " + " << problem.Fraction;
    const double value =
        rtcPV(rate, problem.WholePeriods, problem.Payment, problem.FutureValue, problem.Timing);
    EXPECT_NEAR(OddPeriodDiscount(value, rate, problem.Fraction, problem.Interest), problem.PresentValue,
                1e-5)
        << problem.WholePeriods << " + " << problem.Fraction;
  }
}

}  // namespace
}  // namespace qves
