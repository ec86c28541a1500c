#include "views/scientific/ScientificEngine.h"

#include <cmath>
#include <utility>

#include "formulas/Numbers.h"
#include "formulas/SciFormat.h"
#include "formulas/Trigonometry.h"
#include "model/ArithmeticFault.h"
#include "views/scientific/ScientificOperators.h"

namespace qves {

using enum qves::LastAction;

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
    {"F-E", &ScientificEngine::ToggleNotation, false},
    {"Exp", &ScientificEngine::StartExponent, false},
    {"+/-", &ScientificEngine::FlipExponentSign, true},
};

ScientificEngine::ScientificEngine(EngineHost& host, ScientificHost& modes, Announcer& announcer)
    : EntryEngine(scientific::Operators, host, announcer), Modes(modes) {}

const ScientificEngine::EntryOperator* ScientificEngine::FindEntryOperator(std::string_view op) const {
  for (const EntryOperator& row : EntryOperators)
    if (row.Caption == op && (ExponentEntry || !row.InExponentOnly)) return &row;
  return nullptr;
}

void ScientificEngine::Evaluate(double first, double& second, std::string_view op) {
  if (const EntryOperator* row = FindEntryOperator(op)) return (this->*row->Act)();
  second = Compute(first, second, op);
  ShowResult(second);
}

double ScientificEngine::Compute(double first, double second, std::string_view op) {
  if (op == "Rnd") return Modes.NextRandom();
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
  // Close to a pole, as at the tangent of 90 degrees.
  if (!(std::fabs(result) <= LargestTrigResult)) throw ArithmeticFault("the result is too large");
  return result;
}

void ScientificEngine::ShowResult(double& value) {
  if (NumBase == NumberBase::Decimal) {
    EntryText = NotationMode ? SciFormat(NumberToText(value)) : NumberToText(value);
  } else {
    EntryText = WriteNumber(value);
    value = ValueOf(EntryText);  // what the base cannot show is lost
  }
  Show();
}

void ScientificEngine::ToggleNotation() {
  NotationMode = !NotationMode;
  EntryText = NumberToText(CurrentValue);
  if (NotationMode) EntryText = SciFormat(EntryText);
  CurrentValue = ValueOf(EntryText);
  Show();
}

std::string ScientificEngine::WriteNumber(double value) const {
  return ConvertBase(NumberBase::Decimal, NumBase, NumberToText(value));
}

std::optional<double> ScientificEngine::ReadNumber(std::string_view text) const {
  return ReadInBase(NumBase, text);
}

/// "0" is 0 in every base, however long a zero would be written.
std::string ScientificEngine::RecalledText() const {
  const std::string& text = MemoryCell.Text();
  return text == "0" ? text : ConvertBase(MemoryBase, NumBase, text);
}

void ScientificEngine::OnClearAll() {
  NotationMode = false;
  ExponentEntry = false;
  ParenDepth = 0;
  ParenJustOpened = false;
}

void ScientificEngine::ClearEntry(const PressedKey& key) {
  ExponentEntry = false;
  EntryEngine::ClearEntry(key);
}

/// Inside a group just opened the operator only replaces the outer one, which is kept aside.
bool ScientificEngine::OperatorCompletesPending() const {
  return EntryEngine::OperatorCompletesPending() && !ParenJustOpened;
}

void ScientificEngine::BinaryOperator(const PressedKey& key) {
  ExponentEntry = false;
  EntryEngine::BinaryOperator(key);
  ParenJustOpened = false;
}

void ScientificEngine::UnaryOperator(const PressedKey& key) {
  const bool startsExponent = key.Caption == "Exp";
  if (startsExponent && !ErrorState && RefusesExponent()) return SayResult("");  // it only speaks
  if (!startsExponent && key.Caption != "+/-") ExponentEntry = false;
  EntryEngine::UnaryOperator(key);
}

/// Open groups stay open: only the innermost operator is completed.
void ScientificEngine::Equals(const PressedKey& key) {
  const bool endsExponent = std::exchange(ExponentEntry, false);
  if (endsExponent) ShowResult(CurrentValue);
  if (!ShowsEntry()) Show();
  EntryEngine::Equals(key);
}

void ScientificEngine::Memory(const PressedKey& key) {
  ExponentEntry = false;
  EntryEngine::Memory(key);
}

void ScientificEngine::ChangeBase(int base) {
  NumBase = base;
  const int from = std::exchange(PrevNumBase, base);
  if (ErrorState) return;
  if (std::exchange(ExponentEntry, false)) EntryText = NumberToText(CurrentValue);
  // The number itself: its new text, if short, may mean a negative one.
  if (from == NumberBase::Decimal) CurrentValue = Checked(std::trunc(TextToNumber(EntryText)));
  EntryText = ConvertBase(from, base, EntryText);
  Show();
  LastAction = Uop;
  DecimalEntered = false;
}

StateFields ScientificEngine::Fields() const {
  std::vector<std::string> texts;
  std::vector<std::string> ops;
  for (const OuterOperand& outer : ParenStack) {
    texts.push_back(outer.Text);
    ops.push_back(outer.Op);
  }
  StateFields fields = EntryEngine::Fields();
  fields.insert(fields.end(), {{"NotationMode", NotationMode},
                               {"ExponentEntry", ExponentEntry},
                               {"ExpMantissa", ExpMantissa},
                               {"ExpSign", ExpSign},
                               {"ExpDigits", ExpDigits},
                               {"NumBase", double{1} * NumBase},
                               {"PrevNumBase", double{1} * PrevNumBase},
                               {"ParenDepth", double{1} * ParenDepth},
                               {"ParenEntryStack", texts},
                               {"ParenOpStack", ops},
                               {"ParenJustOpened", ParenJustOpened}});
  return fields;
}

}  // namespace qves
