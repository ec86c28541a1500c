// Bad input and limits of the Business view: every fault is the error state, nothing hangs, and registers
// keep what they held.
#include <gtest/gtest.h>

#include <chrono>

#include "FakePlatform.h"
#include "app/CalculatorApp.h"
#include "model/ArithmeticFault.h"
#include "services/ServiceSet.h"
#include "views/business/Annuity.h"
#include "views/business/Bonds.h"
#include "views/business/CashFlows.h"
#include "views/business/FinancialRegisters.h"
#include "views/business/MoneyText.h"
#include "views/business/OddPeriod.h"

namespace qves {
namespace {

TEST(MoneyText, TwoDecimalsOfTheDecimalDigits) {
  const struct {
    const char* Number;
    const char* Money;
  } rows[] = {
      {"0", "0.00"},
      {"2.675", "2.68"},
      {"-2.675", "-2.68"},
      {"1.005", "1.01"},
      {"0.005", "0.01"},
      {"-0.005", "-0.01"},
      {"0.00499999", "0.00"},
      {"-0.00499999", "0.00"},
      {"9.995", "10.00"},
      {"999.999", "1000.00"},
      {"0.995", "1.00"},
      {"1234567.891", "1234567.89"},
      {"1E+15", "1000000000000000.00"},
      {"1.5E-05", "0.00"},
      {"-1.23456E+16", "-12345600000000000.00"},
      {"5E-324", "0.00"},
      {"100", "100.00"},
      {"12.3", "12.30"},
  };
  for (const auto& row : rows) EXPECT_EQ(FormatMoney(row.Number), row.Money) << row.Number;
  EXPECT_EQ(FormatMoney("1.79769313486232E+308").size(), 309 + 3U);
}

TEST(FinancialRegisters, TheListOfFlowsHasItsLimits) {
  FinancialRegisters registers;
  EXPECT_THROW(RepeatLastFlow(registers, 1), ArithmeticFault);
  AppendFlow(registers, 7);
  RepeatLastFlow(registers, 32767);
  EXPECT_EQ(registers.FlowCount(), 32767);
  EXPECT_EQ(registers.CashFlows[32766], 7);
  EXPECT_EQ(registers.CashFlows[32767], 0);
  EXPECT_THROW(AppendFlow(registers, 8), ArithmeticFault);
  EXPECT_THROW(RepeatLastFlow(registers, 2), ArithmeticFault);
  EXPECT_THROW(RepeatLastFlow(registers, -32768), ArithmeticFault);
  EXPECT_EQ(registers.FlowCount(), 32767);
  RepeatLastFlow(registers, -32764);
  EXPECT_EQ(registers.CashFlows, (std::vector<double>{7, 7, 0})) << "a shortened list ends in 0 again";
  registers.J = 2.5;
  EXPECT_EQ(FindFlow(registers), nullptr);
  registers.J = 0.4;
  EXPECT_THROW(FindFlow(registers), ArithmeticFault);
}

TEST(CashFlows, TheRateNearestToTenPercent) {
  // 10 % and 20 %; 8 % and 30 %; 15 % and -50 %.
  EXPECT_NEAR(rtcIRR(std::vector<double>{-1000, 2300, -1320}), 0.1, 1e-9);
  EXPECT_NEAR(rtcIRR(std::vector<double>{-1000, 2380, -1404}), 0.08, 1e-9);
  EXPECT_NEAR(rtcIRR(std::vector<double>{-1000, 1650, -575}), 0.15, 1e-9);
  EXPECT_NEAR(rtcIRR(std::vector<double>{-1000, 1}), -0.999, 1e-12);
  EXPECT_NEAR(rtcIRR(std::vector<double>{-1, 1000001}), 1000000, 1e-3);
  EXPECT_NEAR(rtcIRR(std::vector<double>{-100, 206.2, -106.296}), 0.032, 1e-9) << "two roots close together";
  EXPECT_NEAR(rtcIRR(std::vector<double>{-100, 230, -132.25}), 0.15, 1e-6) << "a double root";
  EXPECT_EQ(rtcIRR(std::vector<double>{-100, 100}), 0);
  EXPECT_NEAR(rtcIRR(std::vector<double>{-1.7e308, 1e308, 1e308}), 0.11554353198641, 1e-12) << "no overflow";
  EXPECT_THROW(rtcIRR(std::vector<double>{1000, -2300, 1400}), ArithmeticFault) << "no rate at all";
  EXPECT_THROW(rtcIRR(std::vector<double>{0, 0}), ArithmeticFault);
}

TEST(Bonds, ALongBondIsQuick) {
  const Bond bond = {FindCoupons(ToDayNumber({2026, 1, 1}), ToDayNumber({9926, 1, 1})), 6, 100};
  EXPECT_EQ(bond.Coupons.Count, 15800);
  EXPECT_NEAR(BondYield(bond, BondPrice(bond, 0.07)), 0.07, 1e-7);
}

TEST(Annuity, RatesThatAreHardToFind) {
  EXPECT_NEAR(rtcRate(360, 1, -69.188688785081, -1000, 0), 0.011545, 1e-5) << "the nearer of two close roots";
  EXPECT_NEAR(rtcRate(2000, 100, -24204.136448135647, -100000, 0), 0.0041259, 1e-6);
  EXPECT_NEAR(rtcRate(5000, 1, -3992.5058376982, -1000, 0), 0.000001, 1e-8);
  EXPECT_NEAR(rtcNPer(0.1, 0, -1e14, 1, 0), -338.22401, 1e-5);
  EXPECT_NEAR(rtcNPer(0.1, 0, -1e16, 1, 0), -386.54173, 1e-5);
  EXPECT_THROW(SolveRateOdd({4, 0.5, -1000, 0, 2, 0, 0}), ArithmeticFault) << "without a present value";
}

class BusinessLimits : public testing::Test {
 protected:
  BusinessLimits() { App.Main({BusinessView}); }

  void Press(std::u32string_view characters) {
    for (const char32_t character : characters) {
      const bool isCode = (character >= '0' && character <= '9') || (character >= 'A' && character <= 'Z');
      App.KeyDown({isCode ? static_cast<int>(character) : 0, NoShift, character});
    }
  }
  std::string Display() { return dynamic_cast<TextBox&>(*App.ActiveForm()->Find("txtDisplay")).Text; }

  FakePlatform Outside;
  ServiceSet Set{Outside.All};
  AppObserver Nobody;
  CalculatorApp App{Set.All, Nobody};
};

TEST_F(BusinessLimits, HugeNumbersEverywhereEndInAnAnswerAtOnce) {
  const std::u32string huge = U"1" + std::u32string(307, U'0');
  for (const char32_t sign : {U' ', U'M'}) {
    for (const char32_t reg : std::u32string_view(U"NIPTFO")) Press(huge + sign + std::u32string(1, reg));
    for (const std::u32string_view key :
         {U"KN", U"KI", U"KP", U"KT", U"KF", U"C", U"A", U"B", U"Z", U"V", U"U", U"Y", U"S"}) {
      Outside.Speech.Said.clear();
      const auto start = std::chrono::steady_clock::now();
      Press(U"5");
      Press(key);
      Set.All.Speech.EndTurn();
      EXPECT_FALSE(Outside.Speech.Said.empty());
      EXPECT_LT(std::chrono::steady_clock::now() - start, std::chrono::seconds(5)) << "no endless search";
      EXPECT_EQ(Display().find("n"), std::string::npos) << Display();
    }
  }
}

TEST_F(BusinessLimits, AKeyThatFailsChangesNoRegister) {
  Press(U"10N0I1000P0T");
  for (const std::u32string_view failing : {U"KN", U"KI", U"U", U"11A", U"0B", U"99Z"}) {
    Press(failing);
    EXPECT_EQ(Display(), "E");
    Press(U"LN");
    EXPECT_EQ(Display(), "10.00");
    Press(U"LP");
    EXPECT_EQ(Display(), "1000.00");
  }
}

}  // namespace
}  // namespace qves
