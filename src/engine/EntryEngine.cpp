#include "engine/EntryEngine.h"

#include "engine/Buttons.h"
#include "formulas/Numbers.h"
#include "model/ArithmeticFault.h"
#include "services/MessageIds.h"

namespace qves {
namespace {

using enum ActionKind;

bool IsOneOf(ActionKind action, std::initializer_list<ActionKind> list) {
  for (const ActionKind one : list)
    if (one == action) return true;
  return false;
}

}  // namespace

void EntryEngine::Digit(const PressedKey& key) {
  Says.Say(key.SpokenName);
  if (StartsAnew()) {
    ClearAll();
    Now.EntryText.clear();
  }
  if (StartsOperand()) {
    BeginSecondOperand();
    Now.EntryText.clear();
  } else if ((Now.EntryText == "0" && !Now.DecimalEntered) || Now.LastAction == RParen) {
    Now.EntryText.clear();  // the lone leading zero, or an inner result, is replaced
  }
  ExtendEntry(key.Caption);
  if (!IsBeyondADouble(Now.EntryText)) Now.CurrentValue = ValueOf(Now.EntryText);
  Now.LastAction = Num;
}

void EntryEngine::DecimalPoint(const PressedKey& key) {
  Says.Say(key.SpokenName);
  if (EntryHoldsPoint()) return;
  if (StartsAnew()) ClearAll();
  if (StartsOperand()) BeginSecondOperand();
  if (StartsOperand() || Now.LastAction == RParen) {
    Now.EntryText = "0";
    Now.CurrentValue = 0;
    Show();
  }
  if (Now.LastAction != Decimal) ExtendEntry(Separator());
  Now.DecimalEntered = true;
  Now.LastAction = Decimal;
}

void EntryEngine::Backspace(const PressedKey&) {
  const std::string last = Now.EntryText.empty() ? "" : Now.EntryText.substr(Now.EntryText.size() - 1);
  const bool isPoint = last == Separator();
  Says.Say(isPoint ? Says.Message(PointMessage) : last);
  // A sign change may be backspaced into; after any other result the key only speaks.
  if (!IsOneOf(Now.LastAction, {Num, ActionKind::Backspace, Decimal}) &&
      !(Now.CurrentOp == Buttons::Sign.Caption && Now.LastAction == Uop))
    return;
  const std::size_t length = Now.EntryText.size();
  if (length < 2 || (length == 2 && Now.EntryText.front() == '-')) {
    Now.EntryText = "0";
  } else {
    if (isPoint) Now.DecimalEntered = false;
    Now.EntryText.pop_back();
  }
  Now.ErrorState = false;
  Show();
  Now.CurrentValue = ValueOf(Now.EntryText);
  Now.LastAction = ActionKind::Backspace;
}

void EntryEngine::ClearEntry(const PressedKey& key) {
  Says.Say(key.SpokenName);
  if (SecondOperandDue()) BeginSecondOperand();
  Now.ErrorState = false;
  Now.EntryText = "0";
  Now.CurrentValue = 0;
  Now.DecimalEntered = false;
  Show();
  Now.LastAction = Ce;
}

void EntryEngine::BinaryOperator(const PressedKey& key) {
  if (Now.ErrorState) ClearAll();
  Says.Say(key.SpokenName);
  Now.DecimalEntered = false;
  Now.CurrentOp = key.Caption;
  if (OperatorCompletesPending()) CompletePending();
  Now.PendingOp = Now.CurrentOp;  // "" after a failed evaluation
  Now.SecondOperandBegun = false;
  Now.LastAction = Biop;
  if (Now.ErrorState) Says.SayError();
}

void EntryEngine::UnaryOperator(const PressedKey& key) {
  Now.DecimalEntered = false;
  Now.CurrentOp = key.Caption;
  if (!Now.ErrorState) Calculate(Now.Accumulator, Now.CurrentValue, key.Caption);
  // Straight after a binary operator it cancels that and applies to the number shown.
  if (Now.LastAction == Biop) Now.PendingOp.clear();
  Now.LastAction = Uop;
  SayResult("");
}

void EntryEngine::Equals(const PressedKey& key) {
  // A second equals repeats nothing, and an operator without its second operand is dropped. Both are wanted.
  if (!IsOneOf(Now.LastAction, {Equal, Biop})) CompletePending();
  Now.PendingOp.clear();
  SayResult(std::string(key.Caption) + " ");
  Now.LastAction = Equal;
  Now.DecimalEntered = false;
}

void EntryEngine::ClearAll() {
  Now.PendingOp.clear();
  Now.CurrentOp.clear();
  Now.LastAction = None;
  Now.PrevEntryText = Now.EntryText = "0";
  Now.DecimalEntered = Now.ErrorState = Now.SecondOperandBegun = false;
  Show();
  Now.Accumulator = Now.CurrentValue = 0;
  OnClearAll();
}

void EntryEngine::ShowResult(double& value) {
  Now.EntryText = WriteNumber(value);
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
  if (!value) throw ArithmeticFault(FaultReason::NotANumber, "the text is no number");
  return *value;
}

bool EntryEngine::OperatorCompletesPending() const {
  return Now.LastAction != Biop;
}

void EntryEngine::Fail(FaultReason reason) {
  ClearAll();
  Now.ErrorState = true;
  Now.Reason = reason;
  Now.EntryText = "E";
  Show();
}

void EntryEngine::FailAloud(FaultReason reason) {
  Fail(reason);
  Says.SayError();
}

/// A digit or a point after a result or an error starts a new calculation.
bool EntryEngine::StartsAnew() const {
  return Now.ErrorState || IsOneOf(Now.LastAction, {ActionKind::Memory, Uop, Equal, Fin, Ex});
}

/// The number typed next is a new operand: after an operator, and in a group just opened.
bool EntryEngine::StartsOperand() const {
  return IsOneOf(Now.LastAction, {Biop, LParen});
}

/// A pending operator waits for its second operand; a store after the operator does not begin it.
bool EntryEngine::SecondOperandDue() const {
  return Now.LastAction == Biop || (!Now.PendingOp.empty() && !Now.SecondOperandBegun);
}

void EntryEngine::BeginSecondOperand() {
  Now.PrevEntryText = Now.EntryText;
  Now.Accumulator = Now.CurrentValue;
  Now.SecondOperandBegun = true;
}

/// True when the number being typed has its point already.
bool EntryEngine::EntryHoldsPoint() const {
  if (StartsAnew() || StartsOperand() || Now.LastAction == RParen) return false;
  return Now.EntryText.find(Separator()) != std::string::npos;
}

void EntryEngine::CompletePending() {
  if (Now.SecondOperandBegun) Calculate(Now.Accumulator, Now.CurrentValue, Now.PendingOp);
}

void EntryEngine::Show(ValueKind kind) {
  Now.EntryKind = kind;
  Now.InsteadOfEntry.clear();
  Host.ShowDisplay(Now.EntryText);
}

void EntryEngine::ShowAll() {
  Host.ShowDisplay(Now.DisplayText());
  Host.ShowMemory(Now.MemoryCell.Indicator());
}

void EntryEngine::ShowInstead(std::string_view text) {
  Now.EntryKind = ValueKind::Number;
  Now.InsteadOfEntry = text;
  Host.ShowDisplay(text);
}

void EntryEngine::ExtendInstead(std::string_view text) {
  Now.InsteadOfEntry = Now.DisplayText();
  Now.InsteadOfEntry += text;
  Host.ExtendDisplay(text);
}

/// Adds to the entry. An empty one is shown anew.
void EntryEngine::ExtendEntry(std::string_view text) {
  const bool anew = Now.EntryText.empty();
  Now.EntryText += text;
  if (anew)
    Show();
  else
    Host.ExtendDisplay(text);
}

/// The decimal separator; numbers are read with a point when the message file has none.
const std::string& EntryEngine::Separator() const {
  static const std::string point = ".";
  const std::string& separator = Says.Message(DecimalSeparatorMessage);
  return separator.empty() ? point : separator;
}

void EntryEngine::SayResult(std::string_view leadIn) {
  if (Now.ErrorState)
    Says.SayError();
  else
    Says.SayValue(Now.DisplayText(), DisplayKind(), leadIn);
}

}  // namespace qves
