// Parentheses: "(" keeps the outer operand and its operator aside, ")" completes the group and gives its
// result to them as the second operand.
#include <limits>

#include "engine/Numbers.h"
#include "model/ArithmeticFault.h"
#include "views/scientific/ScientificEngine.h"

namespace qves {

using enum qves::LastAction;

namespace {
constexpr auto MostOpenGroups = std::numeric_limits<std::int16_t>::max();
constexpr std::string_view OpenParen = "(";
}  // namespace

void ScientificEngine::LeftParen(const PressedKey& key) {
  Says.Say(key.SpokenName);
  if (ErrorState || LastAction == RParen || LastAction == Uop || LastAction == Equal) ClearAll();
  if (ParenDepth == MostOpenGroups) throw ArithmeticFault("too many open parentheses");
  ExponentEntry = false;
  DecimalEntered = false;
  const bool afterOperator = SecondOperandDue();
  LastAction = LParen;
  if (ParenJustOpened)
    BeginInnerGroup();
  else
    ShowInstead(OpenParen);
  OuterOperand outer = TakeOuterOperand(afterOperator || ParenJustOpened);
  ParenJustOpened = true;
  SecondOperandBegun = false;
  const auto level = static_cast<std::size_t>(ParenDepth++);
  if (ParenStack.size() <= level) ParenStack.resize(level + 1);
  ParenStack[level] = std::move(outer);
}

/// A group within a group that has no operator yet starts as "0 +", so that its result is added to nothing.
void ScientificEngine::BeginInnerGroup() {
  EntryText = "0";
  CurrentValue = 0;
  CurrentOp = "+";
  LastAction = Biop;
  ExtendInstead(OpenParen);
}

ScientificEngine::OuterOperand ScientificEngine::TakeOuterOperand(bool afterOperator) {
  if (afterOperator) return {EntryText, CurrentValue, CurrentOp};
  if (PendingOp.empty()) return {EntryText, CurrentValue, ""};
  // The group takes the place of the operand that was being typed.
  CurrentValue = Accumulator;
  return {NumberToText(Accumulator), Accumulator, PendingOp};
}

/// Ignored when no operator is pending at all, as in "( 5 )" at the very start: the group stays open. That is
/// wanted.
void ScientificEngine::RightParen(const PressedKey& key) {
  Says.Say(key.SpokenName);
  if (PendingOp.empty() || ParenDepth < 1 || GroupIsEmpty()) return;
  ExponentEntry = false;
  if (!ParenJustOpened) CompletePending();
  if (ErrorState) return Says.SayError();
  if (!ShowsEntry()) ShowEntryAgain();
  RestoreOuterOperand();
}

void ScientificEngine::RestoreOuterOperand() {
  const OuterOperand& outer = ParenStack[static_cast<std::size_t>(--ParenDepth)];
  PrevEntryText = outer.Text;
  Accumulator = outer.Value;
  PendingOp = outer.Op;
  ParenJustOpened = false;
  SecondOperandBegun = true;
  DecimalEntered = false;
  LastAction = RParen;
}

/// The last key was "(".
bool ScientificEngine::GroupIsEmpty() const {
  return LastAction == LParen || (LastAction == Biop && ParenJustOpened);
}

/// The display leaves the parentheses. An entry whose place a group has taken is not the value any more.
void ScientificEngine::ShowEntryAgain() {
  if (ValueOf(EntryText) != CurrentValue)
    ShowResult(CurrentValue);
  else
    Show();
}

}  // namespace qves
