#include "engine/EntryEngine.h"

#include "formulas/Numbers.h"
#include "model/ArithmeticFault.h"

namespace qves {
namespace {

using enum qves::LastAction;

constexpr int PointNameMessage = 1073;
constexpr int SeparatorMessage = 1081;

bool IsOneOf(LastAction action, std::initializer_list<LastAction> list) {
  for (const LastAction one : list)
    if (one == action) return true;
  return false;
}

}  // namespace

void EntryEngine::Digit(const PressedKey& key) {
  Says.Say(key.SpokenName);
  if (StartsAnew()) {
    ClearAll();
    EntryText.clear();
  }
  if (StartsOperand()) {
    BeginSecondOperand();
    EntryText.clear();
  } else if ((EntryText == "0" && !DecimalEntered) || LastAction == RParen) {
    EntryText.clear();  // the lone leading zero, or an inner result, is replaced
  }
  ExtendEntry(key.Caption);
  if (!IsBeyondADouble(EntryText)) CurrentValue = ValueOf(EntryText);
  LastAction = Num;
}

void EntryEngine::DecimalPoint(const PressedKey& key) {
  Says.Say(key.SpokenName);
  if (EntryHoldsPoint()) return;
  if (StartsAnew()) ClearAll();
  if (StartsOperand()) BeginSecondOperand();
  if (StartsOperand() || LastAction == RParen) {
    EntryText = "0";
    CurrentValue = 0;
    Show();
  }
  if (LastAction != Decimal) ExtendEntry(Separator());
  DecimalEntered = true;
  LastAction = Decimal;
}

void EntryEngine::Backspace(const PressedKey&) {
  const std::string last = EntryText.empty() ? "" : EntryText.substr(EntryText.size() - 1);
  const bool isPoint = last == Separator();
  Says.Say(isPoint ? Says.Message(PointNameMessage) : last);
  // A sign change may be backspaced into; after any other result the key only speaks.
  if (!IsOneOf(LastAction, {Num, qves::LastAction::Backspace, Decimal}) &&
      !(CurrentOp == "+/-" && LastAction == Uop))
    return;
  const std::size_t length = EntryText.size();
  if (length < 2 || (length == 2 && EntryText.front() == '-')) {
    EntryText = "0";
  } else {
    if (isPoint) DecimalEntered = false;
    EntryText.pop_back();
  }
  ErrorState = false;
  Show();
  CurrentValue = ValueOf(EntryText);
  LastAction = qves::LastAction::Backspace;
}

void EntryEngine::ClearEntry(const PressedKey& key) {
  Says.Say(key.SpokenName);
  if (SecondOperandDue()) BeginSecondOperand();
  ErrorState = false;
  EntryText = "0";
  CurrentValue = 0;
  DecimalEntered = false;
  Show();
  LastAction = Ce;
}

void EntryEngine::BinaryOperator(const PressedKey& key) {
  if (ErrorState) ClearAll();
  Says.Say(key.SpokenName);
  DecimalEntered = false;
  CurrentOp = key.Caption;
  if (OperatorCompletesPending()) CompletePending();
  PendingOp = CurrentOp;  // "" after a failed evaluation
  SecondOperandBegun = false;
  LastAction = Biop;
  if (ErrorState) Says.SayError();
}

void EntryEngine::UnaryOperator(const PressedKey& key) {
  DecimalEntered = false;
  CurrentOp = key.Caption;
  if (!ErrorState) Calculate(Accumulator, CurrentValue, key.Caption);
  // Straight after a binary operator it cancels that and applies to the number shown.
  if (LastAction == Biop) PendingOp.clear();
  LastAction = Uop;
  SayResult("");
}

void EntryEngine::Equals(const PressedKey& key) {
  // A second equals repeats nothing, and an operator without its second operand is dropped. Both are wanted.
  if (!IsOneOf(LastAction, {Equal, Biop})) CompletePending();
  PendingOp.clear();
  SayResult(std::string(key.Caption) + " ");
  LastAction = Equal;
  DecimalEntered = false;
}

void EntryEngine::ClearAll() {
  PendingOp.clear();
  CurrentOp.clear();
  LastAction = None;
  PrevEntryText = EntryText = "0";
  DecimalEntered = false;
  ErrorState = false;
  SecondOperandBegun = false;
  Show();
  Accumulator = CurrentValue = 0;
  OnClearAll();
}

void EntryEngine::Calculate(double first, double& second, std::string_view op) {
  if (op.empty()) return;
  try {
    Evaluate(first, second, op);
  } catch (const ArithmeticFault&) {
    Fail();
  }
}

void EntryEngine::Evaluate(double first, double& second, std::string_view op) {
  if (const OperatorRow* row = FindOperator(Operators, op)) second = row->Apply(first, second);
  ShowResult(second);
}

void EntryEngine::ShowResult(double& value) {
  EntryText = WriteNumber(value);
  Show();
}

std::string EntryEngine::WriteNumber(double value) const {
  return NumberToText(value);
}

std::optional<double> EntryEngine::ReadNumber(std::string_view text) const {
  return ParseNumber(text);
}

double EntryEngine::ValueOf(std::string_view text) const {
  const auto value = ReadNumber(text);
  if (!value) throw ArithmeticFault("the text is no number");
  return *value;
}

bool EntryEngine::OperatorCompletesPending() const {
  return LastAction != Biop;
}

void EntryEngine::Fail() {
  ClearAll();
  ErrorState = true;
  EntryText = "E";
  Show();
}

void EntryEngine::FailAloud() {
  Fail();
  Says.SayError();
}

/// A digit or a point after a result or an error starts a new calculation.
bool EntryEngine::StartsAnew() const {
  return ErrorState || IsOneOf(LastAction, {qves::LastAction::Memory, Uop, Equal, Fin, Ex});
}

/// The number typed next is a new operand: after an operator, and in a group just opened.
bool EntryEngine::StartsOperand() const {
  return IsOneOf(LastAction, {Biop, LParen});
}

/// A pending operator waits for its second operand; a store after the operator does not begin it.
bool EntryEngine::SecondOperandDue() const {
  return LastAction == Biop || (!PendingOp.empty() && !SecondOperandBegun);
}

void EntryEngine::BeginSecondOperand() {
  PrevEntryText = EntryText;
  Accumulator = CurrentValue;
  SecondOperandBegun = true;
}

/// True when the number being typed has its point already.
bool EntryEngine::EntryHoldsPoint() const {
  if (StartsAnew() || StartsOperand() || LastAction == RParen) return false;
  return EntryText.find(Separator()) != std::string::npos;
}

void EntryEngine::CompletePending() {
  if (SecondOperandBegun) Calculate(Accumulator, CurrentValue, PendingOp);
}

void EntryEngine::Show(ValueKind kind) {
  EntryKind = kind;
  InsteadOfEntry.clear();
  Host.ShowDisplay(EntryText);
}

void EntryEngine::ShowInstead(std::string_view text) {
  EntryKind = ValueKind::Number;
  InsteadOfEntry = text;
  Host.ShowDisplay(text);
}

void EntryEngine::ExtendInstead(std::string_view text) {
  InsteadOfEntry = DisplayText();
  InsteadOfEntry += text;
  Host.ExtendDisplay(text);
}

/// Adds to the entry. An empty one is shown anew.
void EntryEngine::ExtendEntry(std::string_view text) {
  const bool anew = EntryText.empty();
  EntryText += text;
  if (anew)
    Show();
  else
    Host.ExtendDisplay(text);
}

/// The decimal separator; numbers are read with a point when the message file has none.
const std::string& EntryEngine::Separator() const {
  static const std::string point = ".";
  const std::string& separator = Says.Message(SeparatorMessage);
  return separator.empty() ? point : separator;
}

void EntryEngine::SayResult(std::string_view leadIn) {
  if (ErrorState)
    Says.SayError();
  else
    Says.SayValue(DisplayText(), DisplayKind(), leadIn);
}

StateFields EntryEngine::Fields() const {
  return {{"PrevEntryText", PrevEntryText},
          {"EntryText", EntryText},
          {"Accumulator", Accumulator},
          {"CurrentValue", CurrentValue},
          {"DecimalEntered", DecimalEntered},
          {"MemoryText", MemoryCell.Text()},
          {"PendingOp", PendingOp},
          {"LastAction", std::string(ToWord(LastAction))},
          {"CurrentOp", CurrentOp}};
}

}  // namespace qves
