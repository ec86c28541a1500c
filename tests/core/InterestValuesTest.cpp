// Interest and principal in the payments of a loan, simple interest and percentages against references. The
// references were computed with the spreadsheet Gnumeric 1.12.55 (IPMT, PPMT, CUMIPMT, CUMPRINC, and
// arithmetic) and again with mpmath 1.3.0 at 60 digits from the double nearest to each argument. The two
// agree to 11 digits but for these, where mpmath's stands: interest and principal at rates of 45 % and above
// with many periods, and sums at rates of 1e-9 and below; Gnumeric loses digits there.
#include <gtest/gtest.h>

#include <cmath>

#include "views/business/Amortization.h"
#include "views/business/Annuity.h"
#include "views/business/Percent.h"

namespace qves {
namespace {

double Tolerance(double reference) {
  return 1e-9 * std::abs(reference) + 1e-13;
}

struct PaymentPartsCase {
  double Rate;
  double Period;
  double Periods;
  double PresentValue;
  double Interest;
  double Principal;
};

constexpr PaymentPartsCase PaymentPartsCases[] = {
    {0.01, 1, 12, 1000, -10, -78.8487886783417},
    {0.01, 6, 12, 1000, -5.97791933919348, -82.8708693391482},
    {0.01, 12, 12, 1000, -0.879690977013284, -87.9690977013284},
    {0.06 / 12, 1, 360, 100000, -500, -99.5505251527524},
    {0.06 / 12, 180, 360, 100000, -356.459676500316, -243.090848652437},
    {0.06 / 12, 360, 360, 100000, -2.98283843359578, -596.567686719157},
    {0.19 / 12, 24, 48, 15000, -145.669138410799, -302.832634802497},
    {0.08, 10, 10.5, 5000, -78.6786677330569, -642.962817750627},
    {0.08, 2, 3.25, 5000, -287.396840037065, -1520.14265949962},
    {0.1, 1, 1, 1000, -100, -1000},
    {0, 5, 12, 1000, 0, -83.3333333333333},
    {1e-12, 6, 12, 1000, -5.83333333334792e-10, -83.3333333332917},
    {1e-9, 100, 360, 100000, -7.25000035887499e-05, -277.777755416666},
    {1e-5, 359, 360, 100000, -0.00556550585052885, -278.273901156937},
    {0.05, 3, 10, -5000, 209.253905330203, 438.26896949708},
    {0.1, 20, 40, 1000, -88.441041361482, -13.8183730528875},
    {0.5, 10, 20, 1000, -494.368160702482, -5.7822488598946},
    {0.45, 94, 120, 1000, -449.980217715043, -0.0197822849568527},
    {0.5, 76, 120, 1000, -499.999994045253, -5.95474744613441e-06},
    {1, 5, 40, 1000, -999.999999986358, -1.45519152283801e-08},
    {10, 3, 5, 1000, -9992.54889785781, -7.51319466004346},
    {-0.001, 60, 120, 1000, 0.493329498201298, -8.33249807063233},
    {-0.05, 10, 30, 1000, 26.4598395426455, -40.1248101376127},
    {-0.5, 3, 5, 1000, 112.903225806452, -129.032258064516},
    {0.004, 600, 1200, 250000, -916.827726701518, -91.5508108942519},
};

struct AmortizationCase {
  double Rate;
  double Periods;
  double Loan;
  int Payments;
  double Principal;
  double Interest;
};

constexpr AmortizationCase AmortizationCases[] = {
    {0.01, 12, 1000, 1, 78.8487886783417, 10},
    {0.01, 12, 1000, 6, 485.078935419801, 48.0137966502497},
    {0.01, 12, 1000, 12, 1000, 66.1854641401005},
    {0.06 / 12, 360, 100000, 1, 99.5505251527524, 500},
    {0.06 / 12, 360, 100000, 12, 1228.01171227672, 5966.59458955631},
    {0.06 / 12, 360, 100000, 180, 28951.1555485893, 78967.9389789061},
    {0.06 / 12, 360, 100000, 360, 100000, 115838.189054991},
    {0.035 / 12, 300, 250000, 60, 34198.9905779599, 40894.544960964},
    {0.19 / 12, 48, 15000, 24, 6102.67652464678, 4661.36603247231},
    {0.08, 10.5, 5000, 10, 4659.47947108742, 2556.93538374942},
    {0.08, 3.25, 5000, 2, 2927.68215903631, 687.396840037065},
    {0.1, 1, 1000, 1, 1000, 100},
    {0.1, 10, 1000, 0, 0, 0},
    {0, 12, 1000, 5, 416.666666666667, 0},
    {1e-12, 12, 1000, 6, 499.9999999985, 4.75000000000521e-09},
    {1e-9, 360, 100000, 100, 27777.7741666668, 0.00862500020189583},
    {1e-5, 360, 100000, 359, 99721.723316104, 180.605215836508},
    {0.05, 10, -5000, 3, -1253.19086289301, -689.377761588839},
    {0.5, 20, 1000, 10, 17.0459274549298, 4984.45816816884},
    {0.45, 120, 1000, 94, 0.0637429181943031, 42299.9362570818},
    {1, 40, 1000, 20, 0.000953673406912416, 19999.9990463448},
    {10, 5, 1000, 3, 8.25830487426265, 29991.9279726793},
    {-0.001, 120, 1000, 60, 515.002999869334, -44.6528855234724},
    {-0.05, 30, 1000, 10, 510.928019284703, -374.278313335031},
    {0.004, 1200, 250000, 600, 20884.6191355147, 584142.503421947},
};

TEST(InterestValues, InterestAndPrincipalInAPayment) {
  for (const auto& [rate, period, periods, presentValue, interest, principal] : PaymentPartsCases) {
    EXPECT_NEAR(rtcIPMT(rate, period, periods, presentValue), interest, Tolerance(interest))
        << rate << ", " << period << ", " << periods;
    EXPECT_NEAR(rtcPPMT(rate, period, periods, presentValue), principal, Tolerance(principal))
        << rate << ", " << period << ", " << periods;
  }
}

TEST(InterestValues, AmortizedParts) {
  for (const AmortizationCase& row : AmortizationCases) {
    const AmortizedPart part = Amortize(row.Rate, row.Periods, row.Loan, row.Payments);
    EXPECT_NEAR(part.Principal, row.Principal, Tolerance(row.Principal)) << row.Rate << ", " << row.Payments;
    EXPECT_NEAR(part.Interest, row.Interest, Tolerance(row.Interest)) << row.Rate << ", " << row.Payments;
  }
}

struct PercentCase {
  double First;
  double Second;
  double OfTotal;
  double Difference;
};

constexpr PercentCase PercentCases[] = {
    {50, 200, 25, 300},
    {200, 50, 25, -75},
    {100, 80, 80, -20},
    {80, 100, 80, 25},
    {1, 3, 33.3333333333333, 200},
    {3, 1, 33.3333333333333, -66.6666666666667},
    {7, 7, 100, 0},
    {5, 0, 0, -100},
    {5, -20, -400, -500},
    {-20, 5, -400, -125},
    {-5, -20, 400, 300},
    {-20, -5, 400, -75},
    {1e-9, 1e9, 1e-16, 1e+20},
    {1e300, 2e300, 50, 100},
    {0.1, 0.3, 33.3333333333333, 200},
    {123.456, 654.321, 18.8678034175886, 430.003402021773},
    {99.99, 100, 99.99, 0.0100010001000151},
    {100, 99.99, 99.99, -0.0100000000000051},
    {1e15, 1000000000000001, 99.9999999999999, 1e-13},
    {2.5, -2.5, -100, -200},
    {12, 144, 8.33333333333333, 1100},
};

TEST(InterestValues, Percentages) {
  for (const auto& [first, second, ofTotal, difference] : PercentCases) {
    EXPECT_NEAR(PercentOfTotal(first, second), ofTotal, Tolerance(ofTotal)) << first << ", " << second;
    EXPECT_NEAR(PercentDifference(first, second), difference, Tolerance(difference))
        << first << ", " << second;
  }
}

struct SimpleInterestCase {
  double PresentValue;
  double Rate;
  double Days;
  int Basis;
  double Expected;
};

constexpr SimpleInterestCase SimpleInterestCases[] = {
    {-450, 0.07, 60, 360, 5.25},
    {-450, 0.07, 60, 365, 5.17808219178082},
    {1000, 0.05, 365, 365, -50},
    {1000, 0.05, 360, 360, -50},
    {-1000, 0.05, 365, 360, 50.6944444444444},
    {-1000, 0, 30, 360, 0},
    {0, 0.05, 30, 360, 0},
    {-1000, 0.05, 0, 365, 0},
    {-1000, 0.05, 1, 365, 0.136986301369863},
    {-1000, 0.05, -30, 360, -4.16666666666667},
    {-1000, -0.0025, 90, 360, -0.625},
    {-1e9, 0.031, 7, 360, 602777.777777778},
    {-0.01, 0.18, 45, 365, 0.000221917808219178},
    {-123456.78, 0.0675, 213, 360, 4930.55515125},
    {-123456.78, 0.0675, 213, 365, 4863.01329986301},
    {-100, 10, 3650, 365, 10000},
    {-100, 1e-9, 1, 360, 2.77777777777778e-10},
    {-2500, 0.1, 90.5, 360, 62.8472222222222},
    {5000, 0.2499, 31, 365, -106.121917808219},
    {-1e-6, 0.05, 180, 365, 2.46575342465753e-08},
};

TEST(InterestValues, SimpleInterest) {
  for (const auto& [presentValue, rate, days, basis, expected] : SimpleInterestCases)
    EXPECT_NEAR(SimpleInterest(presentValue, rate, days, basis), expected, Tolerance(expected))
        << presentValue << ", " << rate << ", " << days << ", " << basis;
}

}  // namespace
}  // namespace qves
