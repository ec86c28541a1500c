// Cash flows and depreciation against references. The references were computed with the spreadsheet Gnumeric
// 1.12.55 (NPV, IRR, SLN, SYD, DDB; PV and RATE for the long rows of equal flows) and again with mpmath 1.3.0
// at 60 digits from the double nearest to each argument. The two agree to 11 digits but for these, where
// mpmath's stands: rates of return of -99.9 % and 1000000 % (Gnumeric finds none) and 100 % (it stops at 9
// digits), and a declining balance with a factor above the life (by the OpenFormula standard the first year
// writes all off).
#include <gtest/gtest.h>

#include <cmath>
#include <vector>

#include "views/business/CashFlows.h"
#include "views/business/Depreciation.h"

namespace qves {
namespace {

double Tolerance(double reference) {
  return 1e-9 * std::abs(reference) + 1e-13;
}

std::vector<double> FirstAndEqual(double first, int count, double flow) {
  std::vector<double> flows(count + 1, flow);
  flows[0] = first;
  return flows;
}

TEST(FinanceValues, NetPresentValue) {
  const struct {
    double Rate;
    std::vector<double> Flows;
    double Expected;
  } rows[] = {
      {0.1, {500, 500, 500}, 1243.42599549211},
      {0, {500, 500, 500}, 1500},
      {1e-12, {100, 200, 300, 400}, 999.999999997},
      {1e-9, {-100, 200, -300, 400.5}, 200.499998998},
      {0.01, {-1000, 300, 300, 300, 300}, 168.900658926249},
      {0.05, {1000}, 952.380952380952},
      {0.05, {0, 0, 0, 0, 1000}, 783.526166468459},
      {0.08, {-70000, 12000, 15000, 18000, 21000, 26000}, 1287.92943111483},
      {0.08, {0.01, 1000000, 0.01}, 857338.837499365},
      {0.12, {100, -230, 132}, -0.113884839650146},
      {0.25, {1, 2, 3, 4, 5, 6, 7, 8, 9, 10}, 13.557549056},
      {0.5, {-1000, 2000, -3000, 4000}, 123.456790123457},
      {1, {100, 100, 100, 100, 100, 100}, 98.4375},
      {10, {100, 100, 100}, 9.99248685199098},
      {1000, {5, 1e6}, 1.002998001},
      {-0.01, {500, 500, 500}, 1530.50760641823},
      {-0.05, {-1000, 250, 250, 250, 250}, 145.98770081487},
      {-0.5, {100, 100, 100, 100, 100, 100}, 12600},
      {-0.9, {1, 2, 3, 4}, 43210},
      {-0.99, {-1, 0, 0, 1}, 99999899.9999996},
      {0.005, std::vector<double>(360, 599.55), 99999.9124089246},
      {0.004, std::vector<double>(1200, -100), -24792.2769752779},
      {2, std::vector<double>(700, 1), 0.5},
  };
  for (const auto& row : rows)
    EXPECT_NEAR(rtcNPV(row.Rate, row.Flows), row.Expected, Tolerance(row.Expected))
        << row.Rate << ", " << row.Flows.front();
}

/// Of several rates the one nearest to 10 % is wanted.
TEST(FinanceValues, InternalRateOfReturn) {
  const struct {
    std::vector<double> Flows;
    double Expected;
  } rows[] = {
      {{-1000, 500, 500, 500}, 0.233751928528259},
      {{-70000, 12000, 15000, 18000, 21000, 26000}, 0.0866309480365316},
      {{-100, 110}, 0.1},
      {{-100, 0, 0, 0, 0, 0, 0, 0, 0, 0, 259.37424601}, 0.1},
      {{-100, 50, 50}, 0},
      {{-100, 40, 50}, -0.0651530771650466},
      {{1000, -300, -300, -300, -300}, 0.0771384729520836},
      {{-1000, 1}, -0.999},
      {{-1, 1000001}, 1000000},
      {{-100, 0, 400}, 1},
      {{-1000, 100, 100, 100, 100, 100}, -0.194018520188732},
      {{-1000, 0, 0, 0, 0, 999}, -0.000200080048033626},
      {{0, -1000, 300, 400, 500}, 0.0889633946933499},
      {{-1e9, 3e8, 3e8, 3e8, 3e8, 3e8}, 0.152382371166307},
      {{-0.01, 0.004, 0.004, 0.004}, 0.0970102574032729},
      {{-1000, 2300, -1320}, 0.1},                                   // also 20.0 %
      {{-1000, 2380, -1404}, 0.08},                                  // also 30.0 %
      {{-1000, 1650, -575}, 0.15},                                   // also -50.0 %
      {{-1000, 3600, -4310, 1716}, 0.1},                             // also 20.0 %, 30.0 %
      {{-1000, 6000, -11000, 6000}, 0},                              // also 100.0 %, 200.0 %
      {{-100, 360, -431, 171.6}, 0.0999999999999972},                // also 20.0 %, 30.0 %
      {{10, -30, 22}, 0.276393202250021},                            // also 72.36068 %
      {{-500, 1200, -300, -450}, 0.0877460041035922},                // also 77.768916 %
      {{-1600, 10000, -10000}, 0.25},                                // also 400.0 %
      {{-1000, 200, 300, -400, 500, 600, -150}, 0.014005308829444},  // also -78.340703 %
      {FirstAndEqual(-100000, 360, 599.55), 0.00499999319311922},
      {FirstAndEqual(-1000, 40, 100), 0.0975877035165162},
      {FirstAndEqual(5000, 120, -60), 0.00645664634460592},
  };
  for (const auto& row : rows)
    EXPECT_NEAR(rtcIRR(row.Flows), row.Expected, Tolerance(row.Expected))
        << row.Flows[0] << ", " << row.Flows[1] << ", ...";
}

struct StraightLineCase {
  double Cost;
  double Salvage;
  double Life;
  double Expected;
};

constexpr StraightLineCase StraightLineCases[] = {
    {10000, 1000, 5, 1800},
    {10000, 0, 5, 2000},
    {10000, 10000, 5, 0},
    {10000, 15000, 5, -1000},
    {10000, -500, 8, 1312.5},
    {0, 1000, 5, -200},
    {-8000, -800, 4, -1800},
    {10000, 1000, 1, 9000},
    {10000, 1000, 0.5, 18000},
    {10000, 1000, 7.25, 1241.37931034483},
    {10000, 1000, 3, 3000},
    {1e9, 1e6, 40, 24975000},
    {0.05, 0.01, 3, 0.0133333333333333},
    {30000, 7500, 10, 2250},
    {1234.56, 78.9, 11, 105.06},
    {100, 0, 1000, 0.1},
    {1e-6, 0, 7, 1.42857142857143e-07},
    {1e12, 1, 6, 166666666666.5},
    {999.99, 0.01, 12, 83.3316666666667},
    {2400, 300, 0.001, 2100000},
};

struct YearsDigitsCase {
  double Cost;
  double Salvage;
  double Life;
  double Year;
  double Expected;
};

constexpr YearsDigitsCase YearsDigitsCases[] = {
    {10000, 1000, 5, 1, 3000},
    {10000, 1000, 5, 2, 2400},
    {10000, 1000, 5, 3, 1800},
    {10000, 1000, 5, 5, 600},
    {10000, 0, 1, 1, 10000},
    {10000, 10000, 5, 2, 0},
    {10000, 12000, 5, 2, -533.333333333333},
    {10000, -500, 8, 8, 291.666666666667},
    {0, 1000, 5, 1, -333.333333333333},
    {-8000, -800, 4, 2, -2160},
    {30000, 7500, 10, 1, 4090.90909090909},
    {30000, 7500, 10, 10, 409.090909090909},
    {1e9, 1e6, 40, 17, 29239024.3902439},
    {0.05, 0.01, 3, 2, 0.0133333333333333},
    {1234.56, 78.9, 11, 7, 87.55},
    {10000, 1000, 5.5, 1, 2769.23076923077},
    {10000, 1000, 5.5, 5, 755.244755244755},
    {10000, 1000, 5.5, 5.5, 503.496503496504},
    {10000, 1000, 5, 2.5, 2100},
    {100000, 0, 1000, 999, 0.3996003996004},
    {5000, 100, 2.25, 2, 1675.21367521368},
    {1e12, 1, 6, 4, 142857142857},
};

struct DecliningCase {
  double Cost;
  double Salvage;
  double Life;
  double Year;
  double Factor;
  double Expected;
};

constexpr DecliningCase DecliningCases[] = {
    {10000, 1000, 5, 1, 2, 4000},
    {10000, 1000, 5, 2, 2, 2400},
    {10000, 1000, 5, 3, 2, 1440},
    {10000, 1000, 5, 4, 2, 864},
    {10000, 1000, 5, 5, 2, 296},
    {10000, 0, 5, 5, 2, 518.4},
    {10000, 1000, 5, 1, 1.5, 3000},
    {10000, 1000, 5, 3, 1.5, 1470},
    {10000, 1000, 5, 5, 1.5, 720.3},
    {10000, 1000, 5, 5, 1, 819.2},
    {10000, 1000, 5, 1, 0.5, 1000},
    {10000, 4000, 5, 1, 2, 4000},
    {10000, 4000, 5, 2, 2, 2000},
    {10000, 7000, 5, 1, 2, 3000},
    {10000, 9000, 5, 2, 2, 0},
    {10000, 10000, 5, 1, 2, 0},
    {10000, 12000, 5, 1, 2, 0},
    {10000, 1000, 1, 1, 2, 9000},
    {10000, 1000, 2, 1, 2, 9000},
    {10000, 1000, 2, 2, 2, 0},
    {10000, 1000, 4, 1, 7, 9000},
    {10000, 1000, 4, 3, 7, 0},
    {2400, 300, 10, 1, 2, 480},
    {2400, 300, 10, 10, 2, 22.1225472},
    {2400, 300, 3650, 1, 2, 1.31506849315068},
    {2400, 300, 3650, 3650, 2, 0.177975158085217},
    {1e9, 1e6, 40, 17, 1.25, 18803446.9822523},
    {0, 0, 5, 1, 2, 0},
    {10000, 1000, 5.5, 3, 2, 1472.57700976709},
    {10000, 1000, 5.5, 5.5, 2, 308.199855581678},
};

TEST(FinanceValues, Depreciation) {
  for (const auto& [cost, salvage, life, expected] : StraightLineCases)
    EXPECT_NEAR(rtcSLN(cost, salvage, life), expected, Tolerance(expected)) << cost << ", " << life;
  for (const auto& [cost, salvage, life, year, expected] : YearsDigitsCases)
    EXPECT_NEAR(rtcSYD(cost, salvage, life, year), expected, Tolerance(expected))
        << cost << ", " << life << ", " << year;
  for (const auto& [cost, salvage, life, year, factor, expected] : DecliningCases)
    EXPECT_NEAR(rtcDDB(cost, salvage, life, year, factor), expected, Tolerance(expected))
        << cost << ", " << salvage << ", " << life << ", " << year << ", " << factor;
}

}  // namespace
}  // namespace qves
