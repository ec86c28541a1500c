// The functions that read the registers beside 2,000 problems solved to 100 digits; reference.txt says how.
// The result has to be the double nearest to the solution, where the problem does not leave more than one.
#include <gtest/gtest.h>

#include <cmath>
#include <fstream>
#include <limits>
#include <map>
#include <sstream>
#include <vector>

#include "formulas/Amortization.h"
#include "formulas/Annuity.h"
#include "formulas/Bonds.h"
#include "formulas/CashFlows.h"
#include "formulas/Depreciation.h"
#include "formulas/OddPeriod.h"
#include "formulas/Percent.h"

namespace qves {
namespace {

using Inputs = std::vector<double>;
using Function = double (*)(const Inputs& x);

int Whole(double x) {
  return static_cast<int>(x);
}

DayNumber Day(double yyyymmdd) {
  const int number = Whole(yyyymmdd);
  return ToDayNumber({number / 10000, number / 100 % 100, number % 100});
}

/// Settlement, maturity, coupon, redemption.
Bond TheBond(const Inputs& x) {
  return {FindCoupons(Day(x[0]), Day(x[1])), x[2], x.size() > 3 ? x[3] : 0};
}

/// Of an odd period before the whole ones: whole periods, fraction, payment, present value, future value,
/// timing, interest.
OddPeriodProblem OddProblem(const Inputs& x) {
  return {Whole(x[0]), x[1], x[2], x[3], x[4], Whole(x[5]), Whole(x[6])};
}

const std::map<std::string, Function> Functions = {
    // rate, periods, payment, future (present) value, timing
    {"PV", [](const Inputs& x) { return rtcPV(x[0], x[1], x[2], x[3], Whole(x[4])); }},
    {"FV", [](const Inputs& x) { return rtcFV(x[0], x[1], x[2], x[3], Whole(x[4])); }},
    // rate, periods, present value, future value, timing
    {"PMT", [](const Inputs& x) { return rtcPMT(x[0], x[1], x[2], x[3], Whole(x[4])); }},
    // rate, payment, present value, future value, timing
    {"N", [](const Inputs& x) { return rtcNPer(x[0], x[1], x[2], x[3], Whole(x[4])); }},
    // periods, payment, present value, future value, timing
    {"I", [](const Inputs& x) { return Checked(rtcRate(x[0], x[1], x[2], x[3], Whole(x[4]))); }},
    // rate, first flow, flows
    {"NPV", [](const Inputs& x) { return rtcNPV(x[0], x[1], std::span(x).subspan(2)); }},
    {"IRR", [](const Inputs& x) { return Checked(rtcIRR(x)); }},
    // cost, salvage, life, year, factor
    {"SLN", [](const Inputs& x) { return rtcSLN(x[0], x[1], x[2]); }},
    {"SYD", [](const Inputs& x) { return rtcSYD(x[0], x[1], x[2], x[3]); }},
    {"DDB", [](const Inputs& x) { return rtcDDB(x[0], x[1], x[2], x[3], x[4]); }},
    // rate, periods, loan, payments
    {"Principal", [](const Inputs& x) { return Amortize(x[0], x[1], x[2], Whole(x[3])).Principal; }},
    {"Interest", [](const Inputs& x) { return Amortize(x[0], x[1], x[2], Whole(x[3])).Interest; }},
    // the bond, yield (price)
    {"Price", [](const Inputs& x) { return BondPrice(TheBond(x), x[4]); }},
    {"Accrued", [](const Inputs& x) { return AccruedInterest(TheBond(x)); }},
    {"Yield", [](const Inputs& x) { return BondYield(TheBond(x), x[4]); }},
    // present value, rate, days, basis
    {"INT", [](const Inputs& x) { return SimpleInterest(x[0], x[1], x[2], Whole(x[3])); }},
    // sum, rate, fraction, interest
    {"OddGrown", [](const Inputs& x) { return OddPeriodGrown(x[0], x[1], x[2], Whole(x[3])); }},
    // rate, whole periods, fraction, payment, future value, timing, interest
    {"OddPV",
     [](const Inputs& x) {
       return OddPeriodPV(x[0], OddProblem({x[1], x[2], x[3], 0, x[4], x[5], x[6]}));
     }},
    {"OddRate", [](const Inputs& x) { return Checked(SolveRateOdd(OddProblem(x))); }},
    // first, second
    {"%T", [](const Inputs& x) { return PercentOfTotal(x[0], x[1]); }},
    {"d%", [](const Inputs& x) { return PercentDifference(x[0], x[1]); }},
};

/// The arguments up to ">": numbers, "flow*count" being a number so many times.
Inputs ReadInputs(std::istream& line) {
  Inputs inputs;
  for (std::string word; line >> word && word != ">";) {
    const std::size_t star = word.find('*');
    inputs.insert(inputs.end(), star == word.npos ? 1 : std::stoul(word.substr(star + 1)), std::stod(word));
  }
  return inputs;
}

/// How many doubles lie from one to the other, up to a few; one more for a negative zero.
int Apart(double a, double b) {
  constexpr int most = 1000;
  int count = std::signbit(a) != std::signbit(b) ? 1 : 0;
  for (; a != b && count < most; ++count) a = std::nextafter(a, b);
  return count;
}

TEST(FinancialReference, TheNearestDouble) {
  std::ifstream file(REFERENCE);
  std::map<std::string, int> counts;
  for (std::string text; std::getline(file, text);) {
    if (text.starts_with('#')) continue;
    std::istringstream line(text);
    std::string name;
    line >> name;
    const Inputs inputs = ReadInputs(line);
    double expected = 0;
    int beside = 0;
    ASSERT_TRUE(line >> expected >> beside) << text;
    EXPECT_LE(Apart(Functions.at(name)(inputs), expected), beside) << text;
    ++counts[name];
  }
  for (const auto& [name, function] : Functions) EXPECT_GE(counts[name], 20) << name;
}

}  // namespace
}  // namespace qves
