// Bad input and limits of the Business view: every fault is the error state, nothing hangs, and registers
// keep what they held.
#include <gtest/gtest.h>

#include <chrono>

#include "FakePlatform.h"
#include "app/CalculatorApp.h"
#include "model/ArithmeticFault.h"
#include "services/ServiceSet.h"
#include "views/business/FinancialRegisters.h"

namespace qves {
namespace {

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
  EXPECT_EQ(registers.CashFlows, (SharedList<double>{7, 7, 0})) << "a shortened list ends in 0 again";
  FinancialRegisters broken;
  AppendFlow(broken, 7);
  RepeatLastFlow(broken, 2.6);
  EXPECT_EQ(broken.CashFlows, (SharedList<double>{7, 0, 7, 0})) << "a fraction rounded up leaves a flow of 0";
  registers.J = 2.5;
  EXPECT_FALSE(FindFlow(registers));
  registers.J = 0.4;
  EXPECT_THROW(FindFlow(registers), ArithmeticFault);
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
