// Random keys, the same ones in every run: whatever is typed, the view answers, its display stays whole, and
// no number that it holds is a negative zero.
#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <random>

#include "FakePlatform.h"
#include "app/CalculatorApp.h"
#include "formulas/Numbers.h"
#include "services/ServiceSet.h"

namespace qves {
namespace {

/// The codes of letters and digits, which are their characters, and those of other keys.
std::vector<int> Codes(std::string_view characters, std::initializer_list<int> others) {
  std::vector<int> codes(characters.begin(), characters.end());
  codes.insert(codes.end(), others);
  return codes;
}

/// Digits in any base, a number or the error, parentheses, or a date with its weekday.
bool IsWholeDisplay(const std::string& text) {
  if (text.find_first_not_of("0123456789ABCDEF") == std::string::npos) return !text.empty();
  if (text.find("E+") != std::string::npos || text.find("e+") != std::string::npos) return true;
  return ParseNumber(text) || text.ends_with('(') || text.find("day, ") != std::string::npos;
}

bool IsNegativeZero(double value) {
  return value == 0 && std::signbit(value);
}

bool HasNegativeZero(const StateFields& fields) {
  return std::ranges::any_of(fields, [](const StateField& field) {
    if (const auto* numbers = std::get_if<std::vector<double>>(&field.Value))
      return std::ranges::any_of(*numbers, IsNegativeZero);
    const auto* number = std::get_if<double>(&field.Value);
    return number && IsNegativeZero(*number);
  });
}

struct RandomCase {
  int View;
  std::vector<int> Usual;
  std::u32string_view Characters;
  int Count = 100000;
};

const RandomCase RandomCases[] = {
    {StandardView,
     Codes("012579M", {KeyPeriod, KeyPadAdd, KeyPadDivide, KeyPadMultiply, KeyEscape, KeyDelete, KeyEnter,
                       KeyBackspace}),
     U"*/-+=."},
    {ScientificView,
     Codes("01579AFXVMSTLNQYDRP", {KeyPeriod, KeyPadAdd, KeyPadDivide, KeyPadMultiply, KeyDelete, KeyEnter,
                                   KeySpace, KeyBackspace, KeyUp, KeyDown, KeyTab, KeySemicolon}),
     U"*/-+=()"},
    // Fewer: a rate of thousands of flows takes its time.
    {BusinessView,
     Codes("01259MKLXNIPTFOHQJGEDZYWVUS",
           {KeyPeriod, KeyPadAdd, KeyPadMultiply, KeyEnter, KeyBackspace, KeyDelete}),
     U"*/-+=.", 20000},
    {StatisticsView,
     Codes("0159AARLUDPMZT", {KeyUp, KeyDown, KeyHome, KeyEnd, KeySpace, KeyPageDown, KeyPeriod, KeyTab,
                              KeyEnter, KeyEscape, KeyDelete, KeyBackspace, KeyF1 + 4}),
     U".="},
};

KeyEvent RandomKey(std::mt19937& random, const RandomCase& keys) {
  const auto upTo = [&](std::size_t count) { return static_cast<int>(random() % count); };
  KeyEvent event;
  event.Code = upTo(4) != 0 ? keys.Usual[static_cast<std::size_t>(upTo(keys.Usual.size()))] : upTo(256);
  event.Shift = upTo(4) != 0 ? NoShift : upTo(8);
  if (event.Shift == NoShift && upTo(8) == 0)
    event.Character = keys.Characters[static_cast<std::size_t>(upTo(keys.Characters.size()))];
  return event;
}

class RandomKeys : public testing::TestWithParam<RandomCase> {};

TEST_P(RandomKeys, NothingBreaksAndEveryDisplayIsWhole) {
  FakePlatform outside;
  ServiceSet set(outside.All);
  struct : AppObserver {
  } nobody;
  CalculatorApp app(set.All, nobody);
  ASSERT_TRUE(app.Main({GetParam().View}));
  const Form& form = *app.ActiveForm();
  const auto& display = dynamic_cast<const TextBox&>(*form.Find("txtDisplay"));
  std::mt19937 random(20260131);
  for (int i = 0; i < GetParam().Count; ++i) {
    const KeyEvent event = RandomKey(random, GetParam());
    app.KeyDown(event);
    app.KeyUp(event.Code);
    set.All.Speech.EndTurn();
    outside.Speech.Said.clear();
    ASSERT_TRUE(IsWholeDisplay(display.Text)) << display.Text;
    ASSERT_FALSE(i % 10 == 0 && HasNegativeZero(form.EngineState())) << i;
  }
  const auto escape = [&] { app.KeyDown({KeyEscape, NoShift, 0}); };
  if (app.ActiveForm() != &form) {  // a dialog is open
    escape();
    app.KeyDown({KeyEnter, NoShift, 0});
  }
  ASSERT_EQ(app.ActiveForm(), &form);
  escape();
  EXPECT_EQ(display.Text, "0");
}

INSTANTIATE_TEST_SUITE_P(Views, RandomKeys, testing::ValuesIn(RandomCases),
                         [](const auto& test) { return "View" + std::to_string(test.param.View); });

}  // namespace
}  // namespace qves
