// The financial functions where they are hard to compute, have no result or must not take long.
#include <gtest/gtest.h>

#include <cmath>
#include <functional>
#include <vector>

#include "formulas/Amortization.h"
#include "formulas/Annuity.h"
#include "formulas/Arithmetic.h"
#include "formulas/Bonds.h"
#include "formulas/CashFlows.h"
#include "formulas/Depreciation.h"
#include "formulas/MoneyText.h"
#include "formulas/OddPeriod.h"
#include "formulas/Percent.h"
#include "model/ArithmeticFault.h"

namespace qves {
namespace {

TEST(MoneyText, TwoDecimalsOfTheDecimalDigits) {
  const struct {
    const char* Number;
    const char* Money;
  } rows[] = {
      {"0", "0.00"},
      {"2.675", "2.68"},
      {"0.005", "0.01"},
      {"-0.005", "-0.01"},
      {"-0.00499999", "0.00"},
      {"9.995", "10.00"},
      {"1234567.891", "1234567.89"},
      {"1E+15", "1000000000000000.00"},
      {"1.5E-05", "0.00"},
      {"-1.23456E+16", "-12345600000000000.00"},
      {"5E-324", "0.00"},
      {"12.3", "12.30"},
  };
  for (const auto& row : rows) EXPECT_EQ(FormatMoney(row.Number), row.Money) << row.Number;
  EXPECT_EQ(FormatMoney("1.79769313486232E+308").size(), 309 + 3U);
}

TEST(CashFlows, TheRateNearestToTenPercent) {
  const struct {
    std::vector<double> Flows;
    double Rate;
    double Tolerance = 1e-12;
  } rows[] = {
      {{-1000, 2300, -1320}, 0.1},                   // also 20 %
      {{-1000, 2380, -1404}, 0.08},                  // also 30 %
      {{-1000, 1650, -575}, 0.15},                   // also -50 %
      {{-1000, 3600, -4310, 1716}, 0.1},             // also 20 %, 30 %
      {{-1600, 10000, -10000}, 0.25},                // also 400 %
      {{-1000, 1}, -0.999},                          //
      {{-1, 1000001}, 1000000},                      //
      {{-100, 206.2, -106.296}, 0.032},              // two roots close together
      {{-100, 230, -132.25}, 0.15, 1e-6},            // a double root
      {{-100, 100}, 0},                              //
      {{-1.7e308, 1e308, 1e308}, 0.11554353198641},  // no overflow
  };
  for (const auto& [flows, rate, tolerance] : rows)
    EXPECT_NEAR(Checked(rtcIRR(flows)), rate, tolerance * std::fmax(rate, 1)) << flows[0] << ", " << flows[1];
}

TEST(Annuity, RatesThatAreHardToFind) {
  const struct {
    double Periods, Payment, PresentValue, FutureValue, Rate, Tolerance;
  } rows[] = {
      {360, 1, -69.188688785081, -1000, 0.011545, 1e-5},  // the nearer of two close roots
      {2000, 100, -24204.136448135647, -100000, 0.0041259, 1e-6},
      {5000, 1, -3992.5058376982, -1000, 0.000001, 1e-8},
      {12, -100, 1200, 0, 0, 0},
  };
  for (const auto& row : rows)
    EXPECT_NEAR(Checked(rtcRate(row.Periods, row.Payment, row.PresentValue, row.FutureValue, 0)), row.Rate,
                row.Tolerance);
  EXPECT_NEAR(rtcNPer(0.1, 0, -1e14, 1, 0), -338.22401, 1e-5);
  EXPECT_NEAR(rtcNPer(0.1, 0, -1e16, 1, 0), -386.54173, 1e-5);
}

TEST(Bonds, ALongBondIsQuick) {
  const Bond bond = {FindCoupons(ToDayNumber({2026, 1, 1}), ToDayNumber({9926, 1, 1})), 6, 100};
  EXPECT_EQ(bond.Coupons.Count, 15800);
  EXPECT_NEAR(BondYield(bond, BondPrice(bond, 0.07)), 0.07, 1e-7);
}

/// A rate of 0 has formulas of its own, and a year of depreciation its ends.
TEST(FinancialLimits, WhereTheFormulaChanges) {
  EXPECT_EQ(rtcPV(0, 12, -100, -1000, 1), 2200);
  EXPECT_EQ(rtcFV(0, 12, -100, -1000, 1), 2200);
  EXPECT_EQ(rtcPMT(0, 12, 1000, 200, 1), -100);
  EXPECT_EQ(rtcNPer(0, -100, 1000, 250, 1), 12.5);
  EXPECT_EQ(rtcNPV(0, -1000, std::vector<double>{500, 500, 500}), 500);
  EXPECT_EQ(Amortize(0, 12, 1200, 5).Principal, 500);
  EXPECT_EQ(BondPrice({{2, 182.5}, 5, 100}, 0), 105);
  EXPECT_EQ(rtcDDB(10000, 7000, 5, 1, 2), 3000) << "down to the salvage value";
  EXPECT_EQ(rtcDDB(10000, 12000, 5, 1, 2), 0);
  EXPECT_EQ(rtcDDB(10000, 1000, 4, 1, 7), 9000) << "all of it in the first year";
}

TEST(FinancialLimits, NothingIsNothingAndNeverNegative) {
  const double zeros[] = {
      rtcFV(0.5, 32767, 0, 0, 1),
      rtcFV(-5, 32767, 0, 0, 0),
      rtcPV(-0.5, 32767, 0, 0, 1),
      rtcPMT(0.1, 32767, 0, 0, 0),
      rtcNPV(0.1, -0.0, std::vector<double>{-0.0}),
      rtcSLN(-0.0, 0, 5),
      rtcDDB(1000, 2000, 5, 1, 2),
      Amortize(0.1, 12, -0.0, 3).Interest,
      Amortize(0, 12, -500, 3).Interest,
      SimpleInterest(5, 0, 10, 360),
      PercentDifference(-5, -5),
      Checked(rtcRate(12, -100, 1200, 0, 0)),
      ChangeSign(0, 0),
      Multiply(-5, 0),
      Percent(0, -5e-324),
      *ParseNumber("-0"),
  };
  for (const double& zero : zeros) {
    EXPECT_EQ(zero, 0) << &zero - zeros;
    EXPECT_FALSE(std::signbit(zero)) << &zero - zeros;
  }
}

TEST(FinancialLimits, WithoutAResultIsAFault) {
  const std::vector<double> oneSign = {500, 0, 500}, noRate = {1000, -2300, 1400};
  const std::function<double()> faults[] = {
      [] { return rtcFV(0.5, 32767, 1, 0, 0); },
      [] { return rtcPV(-1, 5, 1, 1, 0); },
      [] { return rtcPMT(0.1, 0, 1000, 0, 0); },
      [] { return rtcPMT(-1, 5, 1000, 0, 1); },
      [] { return rtcNPer(0, 0, 1000, 0, 0); },
      [] { return rtcNPer(-1, 100, 1000, 0, 0); },
      [] { return rtcNPer(0.1, -100, 1000, 0, 0); },
      [] { return Checked(rtcRate(10, 100, 1000, 1000, 0)); },
      [] { return Checked(rtcRate(10, 0, 0, 0, 0)); },
      [] { return Checked(rtcRate(0, 1, -1, 1, 0)); },
      [] {
        return Checked(SolveRateOdd(OddPeriodProblem{4, 0.5, -1000, 0, 2, 0, 0}));
      },
      [&] { return rtcNPV(-1, 0, oneSign); },
      [&] { return Checked(rtcIRR(oneSign)); },
      [&] { return Checked(rtcIRR(noRate)); },
      [] { return rtcSLN(1000, 0, 0); },
      [] { return rtcSYD(1000, 0, 5, 5.5); },
      [] { return rtcDDB(1000, 0, 5, 0.5, 2); },
      [] { return rtcDDB(1000, 0, 5, 1, 0); },
      [] { return Amortize(0.1, 12, 1000, 13).Principal; },
      [] { return Amortize(0.1, 12, 1000, -1).Principal; },
      [] {
        return BondPrice(Bond{{0, 0}, 5, 100}, 0.05);
      },
      [] {
        return BondYield(Bond{{2, 180}, 5, 100}, 110);
      },
      [] {
        return BondYield(Bond{{2, 180}, 5, 100}, -100);
      },
      [] { return PercentOfTotal(0, -5); },
      [] { return PercentDifference(0, 5); },
  };
  for (const auto& fault : faults) EXPECT_THROW(fault(), ArithmeticFault) << &fault - faults;
}

}  // namespace
}  // namespace qves
