// Bad input in the Scientific view: the error state, spoken once, and nothing else is lost.
#include <gtest/gtest.h>

#include "FakePlatform.h"
#include "app/CalculatorApp.h"
#include "formulas/NumberBases.h"
#include "services/ServiceSet.h"

namespace qves {
namespace {

class ScientificFaults : public testing::Test {
 protected:
  ScientificFaults() {
    Outside.Files.Content["/program/CalcMsg.txt"] +=
        "1068\tleft paren\n1201\tCurrent value is  %%\n1206\t plus \n";
    App.Main({ScientificView});
    Outside.Speech.Said.clear();
  }

  void Press(char32_t character, int times = 1) {
    for (int i = 0; i < times; ++i) {
      const bool isDigit = character >= '0' && character <= '9';
      App.KeyDown({isDigit ? static_cast<int>(character) : 0, NoShift, character});
    }
  }
  void Press(std::u32string_view characters) {
    for (const char32_t character : characters) Press(character);
  }
  void Choose(std::string_view name, int item) {
    App.ActiveForm()->Choose(dynamic_cast<ListBox&>(*App.ActiveForm()->Find(name)), item);
  }
  void Click(std::string_view name, int index) {
    App.ActiveForm()->Click(*App.ActiveForm()->Find(name, index));
  }
  std::string Display() { return dynamic_cast<TextBox&>(*App.ActiveForm()->Find("txtDisplay")).Text; }
  /// What the voice was given last.
  std::string LastSaid() {
    Set.All.Speech.EndTurn();
    return Outside.Speech.Said.back();
  }

  FakePlatform Outside;
  ServiceSet Set{Outside.All};
  AppObserver Nobody;
  CalculatorApp App{Set.All, Nobody};
};

TEST_F(ScientificFaults, MoreOpenParenthesesThanFit) {
  Press(U"2+");
  Press(U'(', 32767);
  EXPECT_EQ(Display(), std::string(32767, '('));
  Press(U'(');
  EXPECT_EQ(Display(), "E");
  EXPECT_EQ(LastSaid(), "queued Error");
  Press(U'(', 40000 - 32768);
  EXPECT_EQ(Display(), std::string(40000 - 32768, '('));
  Press(U"5=");
  EXPECT_EQ(Display(), "5");
}

TEST_F(ScientificFaults, TheLineOfWhatIsOpenFollowsEveryKey) {
  const struct {
    std::u32string_view Keys;
    std::string_view Line;
  } rows[] = {
      {U"2", ""},        {U"*", "2 *"},       {U"(", "2 * ("},
      {U"(", "2 * ( ("}, {U"3", "2 * ( ("},   {U"+", "2 * ( ( 3 +"},
      {U"4)", "2 * ("},  {U"/", "2 * ( 7 /"}, {U"1)", "2 *"},
      {U"=", ""},        {U"5+", "5 +"},      {U"0/0=", ""},
  };
  for (const auto& row : rows) {
    Press(row.Keys);
    EXPECT_EQ(App.ActiveForm()->OpenLine(), row.Line);
  }
  Press(U"255*");
  Choose("lltNumBase", NumberBase::Hexadecimal);
  EXPECT_EQ(App.ActiveForm()->OpenLine(), "FF *");
  App.KeyDown({KeyF3, NoShift, 0});
  App.KeyDown({KeyF3, NoShift, 0});
  EXPECT_EQ(App.ActiveForm()->OpenLine(), "");
  Press(U'(', 1000);
  EXPECT_LT(App.ActiveForm()->OpenLine().size(), 1000U) << "and every key takes as long as another";
}

TEST_F(ScientificFaults, WhatIsReadBackIsShownAsItIsWritten) {
  Press(U"1.5+");
  App.KeyDown({KeyF6, NoShift, 0});
  EXPECT_EQ(App.ActiveForm()->StatusLine(), "Scientific View. 1.5 plus. Current value is  1.5.");
  EXPECT_EQ(LastSaid(), "now Scientific View. 1point5 plus. Current value is  1point5.");
}

TEST_F(ScientificFaults, EveryFaultLeavesMemoryBaseAndUnitAlone) {
  const struct {
    int Base;
    std::u32string_view Typed;
    int Operator;  ///< index of the unary operator
  } rows[] = {
      {1, U"0-1=", 0},               // the root of -1
      {1, U"0", 2},                  // 1 / 0
      {1, U"0", 11},                 // the logarithm of 0
      {1, U"171", 8},                // 171!
      {1, U"40000", 8},              // beyond a 16-bit count
      {1, U"90", 6},                 // the pole of the tangent
      {1, U"3000000000", 7},         // no 32-bit integer
      {1, U"1000", 14},              // e^1000
      {0, U"7777777*77777777=", 3},  // no 32-bit result
      {2, U"77777777777", 3},        // octal, beyond 32 bits
      {0, U"123456789", 3},          // nine hexadecimal digits
  };
  Press(U"5");
  Click("cmdMemory", 2);
  for (const auto& row : rows) {
    Choose("lltNumBase", row.Base);
    Choose("lltTrigMode", 0);
    Press(row.Typed);
    Click("cmdUOp", row.Operator);
    EXPECT_EQ(Display(), "E") << row.Operator;
    EXPECT_TRUE(LastSaid().ends_with(" Error")) << LastSaid();
    Click("cmdMemory", 1);
    EXPECT_EQ(Display(), "5");
  }
}

TEST_F(ScientificFaults, TheSmallestIntegerDividedByMinusOne) {
  Press(U"0-2147483648=");
  Click("cmdBiOp", 7);
  Press(U"1");
  Click("cmdUOp", 1);
  Press(U'=');
  EXPECT_EQ(Display(), "0");
}

}  // namespace
}  // namespace qves
