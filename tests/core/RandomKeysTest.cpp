// Random keys, the same ones in every run: whatever is typed, the view answers, its display stays whole, no
// number that it holds is a negative zero, and what a key has done can be taken back and done again exactly.
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

/// Everything that can be seen of a calculation.
struct Look {
  StateFields Fields;
  std::vector<std::string> Controls;
  std::vector<int> Points;  ///< chosen in lists of data: a move there is no step

  bool ShowsSameCalculation(const Look& other) const {
    const auto isSame = [](const StateField& one, const StateField& two) { return one.Value == two.Value; };
    return Controls == other.Controls && std::ranges::equal(Fields, other.Fields, isSame);
  }
  bool operator==(const Look& other) const { return ShowsSameCalculation(other) && Points == other.Points; }
};

Look LookAt(const Form& form) {
  Look look{form.EngineState(), {}, {}};
  for (const auto& control : form.Controls()) {
    std::string shown = control->Enabled ? "enabled " : "disabled ";
    if (const auto* box = dynamic_cast<const TextBox*>(control.get())) shown += box->Text;
    if (const auto* box = dynamic_cast<const CheckBox*>(control.get())) shown += box->Checked ? "x" : "-";
    if (const auto* list = dynamic_cast<const ListBox*>(control.get()))
      shown += std::to_string(list->ListIndex);
    if (const auto* list = dynamic_cast<const ListView*>(control.get())) {
      look.Points.push_back(list->ListIndex);
      for (int item = 0; item < list->ItemCount(); ++item) shown += list->ItemText(item) + " ";
    }
    look.Controls.push_back(std::move(shown));
  }
  return look;
}

/// Keys that are no step themselves, or after which the next keys do nothing.
bool IsNoStep(const KeyEvent& event) {
  return event.Code == KeyF3 || (event.Code == KeyF1 && event.Shift == ShiftBit);
}

/// Fewer keys where a sanitizer slows each of them.
#ifdef __SANITIZE_ADDRESS__
constexpr int Slowness = 10;
#else
constexpr int Slowness = 1;
#endif

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

struct RandomKeys : testing::TestWithParam<RandomCase>, AppObserver {
  FakePlatform Outside;
  ServiceSet Set{Outside.All};
  CalculatorApp App{Set.All, *this};
  std::mt19937 Random{20260131};

  void Press(const KeyEvent& event) {
    App.KeyDown(event);
    App.KeyUp(event.Code);
    Set.All.Speech.EndTurn();
    Outside.Speech.Said.clear();
  }
};

TEST_P(RandomKeys, NothingBreaksAndEveryDisplayIsWhole) {
  ASSERT_TRUE(App.Main({GetParam().View}));
  const Form& form = *App.ActiveForm();
  const auto& display = dynamic_cast<const TextBox&>(*form.Find("txtDisplay"));
  for (int i = 0; i < GetParam().Count; ++i) {
    Press(RandomKey(Random, GetParam()));
    ASSERT_TRUE(IsWholeDisplay(display.Text)) << display.Text;
    ASSERT_FALSE(i % 10 == 0 && HasNegativeZero(form.EngineState())) << i;
  }
  if (App.ActiveForm() != &form) {  // a dialog is open
    Press({KeyEscape, NoShift, 0});
    Press({KeyEnter, NoShift, 0});
  }
  ASSERT_EQ(App.ActiveForm(), &form);
  Press({KeyEscape, NoShift, 0});
  EXPECT_EQ(display.Text, "0");
}

TEST_P(RandomKeys, EveryStepIsTakenBackAndDoneAgainExactly) {
  ASSERT_TRUE(App.Main({GetParam().View}));
  const Form& form = *App.ActiveForm();
  int steps = 0;
  Look before = LookAt(form);
  for (int i = 0; i < GetParam().Count / Slowness; ++i) {
    const KeyEvent event = RandomKey(Random, GetParam());
    if (IsNoStep(event)) continue;
    const bool inView = App.ActiveForm() == &form;
    Press(event);
    const Look after = LookAt(form);
    if (inView && App.ActiveForm() == &form && !after.ShowsSameCalculation(before)) {
      ++steps;
      Press({KeyF3, NoShift, 0});
      ASSERT_TRUE(LookAt(form) == before)
          << "key " << event.Code << " shift " << event.Shift << " number " << i;
      Press({KeyF3, ShiftBit, 0});
      ASSERT_TRUE(LookAt(form) == after)
          << "key " << event.Code << " shift " << event.Shift << " number " << i;
    }
    before = LookAt(form);
  }
  EXPECT_GT(steps, GetParam().Count / Slowness / 4);
}

INSTANTIATE_TEST_SUITE_P(Views, RandomKeys, testing::ValuesIn(RandomCases),
                         [](const auto& test) { return "View" + std::to_string(test.param.View); });

}  // namespace
}  // namespace qves
