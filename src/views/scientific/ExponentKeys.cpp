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
  ExpMantissa = EntryText;
  ExpSign = "+";
  ExpDigits.clear();
  ExponentEntry = true;
  ShowExponent();
}

/// Whether the entry has an exponent already, also after it has been written without the notation.
bool ScientificEngine::RefusesExponent() {
  if (ExponentEntry) return true;
  if (NotationMode && EntryText.find('E') == std::string::npos) {
    EntryText = NumberToText(ValueOf(EntryText));
    NotationMode = false;
    Show();
  }
  return HasExponent(EntryText);
}

void ScientificEngine::ShowExponent() {
  const std::string zeros(MostExponentDigits - ExpDigits.size(), '0');
  EntryText = ExpMantissa + "e" + ExpSign + zeros + ExpDigits;
  Show();
}

/// The sign of the exponent, never that of the mantissa.
void ScientificEngine::FlipExponentSign() {
  ExpSign = ExpSign == "+" ? "-" : "+";
  ShowExponent();
  CurrentValue = ValueOf(EntryText);
}

void ScientificEngine::Digit(const PressedKey& key) {
  if (!ExponentEntry) return EntryEngine::Digit(key);
  if (ExpDigits.size() == MostExponentDigits) return SayResult("");
  Says.Say(key.SpokenName);
  ExpDigits += key.Caption;
  ShowExponent();
  CurrentValue = ValueOf(EntryText);
  LastAction = qves::LastAction::Num;
}

void ScientificEngine::DecimalPoint(const PressedKey& key) {
  if (ExponentEntry)
    Says.Say(key.SpokenName);
  else
    EntryEngine::DecimalPoint(key);
}

void ScientificEngine::Backspace(const PressedKey& key) {
  if (!ExponentEntry) return EntryEngine::Backspace(key);
  Says.Say(EntryText.substr(EntryText.size() - 1));
  DropExponentDigit();
  CurrentValue = ValueOf(EntryText);
  LastAction = qves::LastAction::Backspace;
}

/// Without a digit to drop the exponent itself goes, and the mantissa is typed on.
void ScientificEngine::DropExponentDigit() {
  if (!ExpDigits.empty()) {
    ExpDigits.pop_back();
    return ShowExponent();
  }
  ExponentEntry = false;
  EntryText = ExpMantissa;
  Show();
}

}  // namespace qves
