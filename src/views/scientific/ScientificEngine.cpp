#include "views/scientific/ScientificEngine.h"

#include <cmath>
#include <utility>

#include "formulas/Numbers.h"
#include "formulas/SciFormat.h"
#include "formulas/Trigonometry.h"
#include "model/ArithmeticFault.h"
#include "views/scientific/ScientificOperators.h"

namespace qves {

namespace Key = scientific::Buttons;

using enum ActionKind;

namespace {
constexpr double LargestTrigResult = 1e15;
}

/// An operator that changes the entry itself and shows it as it wants.
struct ScientificEngine::EntryOperator {
  std::string_view Caption;
  void (ScientificEngine::*Act)();
  bool InExponentOnly;
};

const ScientificEngine::EntryOperator ScientificEngine::EntryOperators[] = {
    {Key::Notation.Caption, &ScientificEngine::ToggleNotation, false},
    {Key::Exponent.Caption, &ScientificEngine::StartExponent, false},
    {Key::Sign.Caption, &ScientificEngine::FlipExponentSign, true},
};

ScientificEngine::ScientificEngine(ScientificState& state, EngineHost& host, ScientificHost& modes,
                                   Announcer& announcer)
    : EntryEngine(state, scientific::Operators, host, announcer), Modes(modes), Now(state) {}

const ScientificEngine::EntryOperator* ScientificEngine::FindEntryOperator(std::string_view op) const {
  for (const EntryOperator& row : EntryOperators)
    if (row.Caption == op && (Now.Form == EntryForm::Exponent || !row.InExponentOnly)) return &row;
  return nullptr;
}

void ScientificEngine::Evaluate(double first, double& second, std::string_view op) {
  if (const EntryOperator* row = FindEntryOperator(op)) return (this->*row->Act)();
  second = Compute(first, second, op);
  ShowResult(second);
}

double ScientificEngine::Compute(double first, double second, std::string_view op) {
  if (op == Key::Random.Caption) return Modes.NextRandom();
  if (IsTrigFunction(op)) return ComputeTrig(op, second);
  const OperatorRow* row = FindOperator(Operators, op);
  if (!row) return second;
  if (!row->Inverse || !Modes.InverseChecked()) return row->Apply(first, second);
  const double result = row->Inverse(first, second);
  Modes.ClearInverse();
  return result;
}

double ScientificEngine::ComputeTrig(std::string_view op, double x) {
  const TrigModes modes = {Modes.InverseChecked(), Modes.HyperbolicChecked(), Modes.TrigMode()};
  const double result = TrigFunction(op, x, modes);
  Modes.ClearInverse();
  Modes.ClearHyperbolic();
  // Close to a pole, as at the tangent of 90 degrees; a hyperbolic function has none.
  if (!(std::fabs(result) <= LargestTrigResult))
    throw ArithmeticFault(modes.Hyperbolic ? FaultReason::TooLarge : FaultReason::NotDefined,
                          "the result is too large");
  return result;
}

void ScientificEngine::ShowResult(double& value) {
  if (Now.NumBase == NumberBase::Decimal) {
    Now.EntryText = Now.Form == EntryForm::Notation ? SciFormat(NumberToText(value)) : NumberToText(value);
  } else {
    Now.EntryText = WriteNumber(value);
    value = ValueOf(Now.EntryText);  // what the base cannot show is lost
  }
  Show();
}

void ScientificEngine::ToggleNotation() {
  Now.Form = Now.Form == EntryForm::Notation ? EntryForm::Plain : EntryForm::Notation;
  Now.EntryText = NumberToText(Now.CurrentValue);
  if (Now.Form == EntryForm::Notation) Now.EntryText = SciFormat(Now.EntryText);
  Now.CurrentValue = ValueOf(Now.EntryText);
  Show();
}

std::string ScientificEngine::WriteNumber(double value) const {
  return ConvertBase(NumberBase::Decimal, Now.NumBase, NumberToText(value));
}

std::optional<double> ScientificEngine::ReadNumber(std::string_view text) const {
  return ReadInBase(Now.NumBase, text);
}

void ScientificEngine::OnClearAll() {
  Now.Form = EntryForm::Plain;
  Now.ParenDepth = 0;
  Now.ParenJustOpened = Now.PendingIsImplied = false;
}

void ScientificEngine::ClearEntry(const PressedKey& key) {
  EndExponent();
  EntryEngine::ClearEntry(key);
}

/// Inside a group just opened the operator only replaces the outer one, which is kept aside.
bool ScientificEngine::OperatorCompletesPending() const {
  return EntryEngine::OperatorCompletesPending() && !Now.ParenJustOpened;
}

void ScientificEngine::BinaryOperator(const PressedKey& key) {
  EndExponent();
  EntryEngine::BinaryOperator(key);
  Now.ParenJustOpened = Now.PendingIsImplied = false;
}

void ScientificEngine::UnaryOperator(const PressedKey& key) {
  const bool startsExponent = key.Caption == Key::Exponent.Caption;
  if (startsExponent && !Now.ErrorState && RefusesExponent()) return SayResult("");  // it only speaks
  if (!startsExponent && key.Caption != Key::Sign.Caption) EndExponent();
  EntryEngine::UnaryOperator(key);
}

/// Open groups stay open: only the innermost operator is completed.
void ScientificEngine::Equals(const PressedKey& key) {
  if (EndExponent()) ShowResult(Now.CurrentValue);
  if (!ShowsEntry()) Show();
  EntryEngine::Equals(key);
}

void ScientificEngine::Memory(const PressedKey& key) {
  EndExponent();
  EntryEngine::Memory(key);
}

void ScientificEngine::TakeText(std::string_view text, int base) {
  EndExponent();
  EntryEngine::TakeText(text, base);
}

void ScientificEngine::ChangeBase(int base) {
  const int from = std::exchange(Now.NumBase, base);
  if (Now.ErrorState) return;
  if (EndExponent()) Now.EntryText = NumberToText(Now.CurrentValue);
  // The number itself: its new text, if short, may mean a negative one.
  if (from == NumberBase::Decimal) Now.CurrentValue = Checked(std::trunc(TextToNumber(Now.EntryText)));
  Now.EntryText = ConvertBase(from, base, Now.EntryText);
  Show();
  Now.LastAction = Uop;
  Now.DecimalEntered = false;
}

}  // namespace qves
