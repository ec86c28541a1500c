// Parentheses: "(" keeps the outer operand and its operator aside, ")" completes the group and gives its
// result to them as the second operand.
#include <limits>

#include "formulas/Numbers.h"
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
  OuterOperand outer = ParenJustOpened ? BeginInnerGroup() : BeginGroup();
  ParenJustOpened = true;
  SecondOperandBegun = false;
  const auto level = static_cast<std::size_t>(ParenDepth++);
  if (ParenStack.size() <= level) ParenStack.resize(level + 1);
  ParenStack[level] = std::move(outer);
}

/// A group within a group that has no operator yet starts as "0 +", so that its result is added to nothing.
ScientificEngine::OuterOperand ScientificEngine::BeginInnerGroup() {
  ExtendInstead(OpenParen);
  EntryText = "0";
  CurrentValue = 0;
  CurrentOp = "+";
  LastAction = Biop;
  return {EntryText, CurrentValue, CurrentOp};
}

ScientificEngine::OuterOperand ScientificEngine::BeginGroup() {
  if (!PendingOp.empty() && !SecondOperandDue()) {
    // The group takes the place of the operand that was being typed.
    EntryText = WriteNumber(Accumulator);
    CurrentValue = Accumulator;
  }
  ShowInstead(OpenParen);
  LastAction = LParen;
  return {EntryText, CurrentValue, PendingOp};
}

/// Ignored when no operator is pending at all, as in "( 5 )" at the very start: the group stays open. That is
/// wanted.
void ScientificEngine::RightParen(const PressedKey& key) {
  Says.Say(key.SpokenName);
  if (PendingOp.empty() || ParenDepth < 1 || GroupIsEmpty()) return;
  ExponentEntry = false;
  if (!ParenJustOpened) CompletePending();
  if (ErrorState) return Says.SayError();
  if (!ShowsEntry()) Show();
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

}  // namespace qves
