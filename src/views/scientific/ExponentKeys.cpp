// Exponent entry: after "Exp" the digits, the point, Backspace and the sign belong to the exponent.
#include "formulas/Numbers.h"
#include "views/scientific/ScientificEngine.h"

namespace qves {
namespace {

constexpr std::size_t MostExponentDigits = 3;

bool HasExponent(std::string_view text) {
  return text.find_first_of("Ee") != std::string_view::npos;
}

}  // namespace

void ScientificEngine::StartExponent() {
  Now.ExpMantissa = Now.EntryText;
  Now.ExpSign = "+";
  Now.ExpDigits.clear();
  Now.Form = EntryForm::Exponent;
  ShowExponent();
}

/// Whether the entry has an exponent already, also after it has been written without the notation.
bool ScientificEngine::RefusesExponent() {
  if (Now.Form == EntryForm::Exponent) return true;
  if (Now.Form == EntryForm::Notation && Now.EntryText.find('E') == std::string::npos) {
    Now.EntryText = NumberToText(ValueOf(Now.EntryText));
    Now.Form = EntryForm::Plain;
    Show();
  }
  return HasExponent(Now.EntryText);
}

bool ScientificEngine::EndExponent() {
  if (Now.Form != EntryForm::Exponent) return false;
  Now.Form = EntryForm::Plain;
  return true;
}

void ScientificEngine::ShowExponent() {
  const std::string zeros(MostExponentDigits - Now.ExpDigits.size(), '0');
  Now.EntryText = Now.ExpMantissa + "e" + Now.ExpSign + zeros + Now.ExpDigits;
  Show();
}

/// The sign of the exponent, never that of the mantissa.
void ScientificEngine::FlipExponentSign() {
  Now.ExpSign = Now.ExpSign == "+" ? "-" : "+";
  ShowExponent();
  Now.CurrentValue = ValueOf(Now.EntryText);
}

void ScientificEngine::Digit(const PressedKey& key) {
  if (Now.Form != EntryForm::Exponent) return EntryEngine::Digit(key);
  if (Now.ExpDigits.size() == MostExponentDigits) return SayResult("");
  Says.Say(key.SpokenName);
  Now.ExpDigits += key.Caption;
  ShowExponent();
  Now.CurrentValue = ValueOf(Now.EntryText);
  Now.LastAction = ActionKind::Num;
}

void ScientificEngine::DecimalPoint(const PressedKey& key) {
  if (Now.Form == EntryForm::Exponent)
    Says.Say(key.SpokenName);
  else
    EntryEngine::DecimalPoint(key);
}

void ScientificEngine::Backspace(const PressedKey& key) {
  if (Now.Form != EntryForm::Exponent) return EntryEngine::Backspace(key);
  Says.Say(Now.EntryText.substr(Now.EntryText.size() - 1));
  DropExponentDigit();
  Now.CurrentValue = ValueOf(Now.EntryText);
  Now.LastAction = ActionKind::Backspace;
}

/// Without a digit to drop the exponent itself goes, and the mantissa is typed on.
void ScientificEngine::DropExponentDigit() {
  if (!Now.ExpDigits.empty()) {
    Now.ExpDigits.pop_back();
    return ShowExponent();
  }
  Now.Form = EntryForm::Plain;
  Now.EntryText = Now.ExpMantissa;
  Show();
}

}  // namespace qves
