// Parentheses: "(" keeps the outer operand and its operator aside, ")" completes the group and gives its
// result to them as the second operand.
#include <algorithm>
#include <limits>

#include "formulas/Numbers.h"
#include "model/ArithmeticFault.h"
#include "views/scientific/ScientificEngine.h"

namespace qves {

using enum ActionKind;

namespace {
constexpr auto MostOpenGroups = std::numeric_limits<std::int16_t>::max();
constexpr std::size_t MostGroupsTold = 100;
}  // namespace

void ScientificEngine::LeftParen(const PressedKey& key) {
  Says.Say(key.SpokenName);
  if (Now.ErrorState || Now.LastAction == RParen || Now.LastAction == Uop || Now.LastAction == Equal)
    ClearAll();
  if (Now.ParenDepth == MostOpenGroups)
    throw ArithmeticFault(FaultReason::TooManyParentheses, "too many open parentheses");
  EndExponent();
  Now.DecimalEntered = false;
  const OuterOperand outer = Now.ParenJustOpened ? BeginInnerGroup() : BeginGroup();
  Now.ParenJustOpened = true;
  Now.SecondOperandBegun = false;
  const auto level = static_cast<std::size_t>(Now.ParenDepth++);
  if (level < Now.ParenStack.size())
    Now.ParenStack.Set(level, outer);
  else
    Now.ParenStack.Append(outer);
}

/// A group within a group that has no operator yet starts as "0 +", so that its result is added to nothing.
OuterOperand ScientificEngine::BeginInnerGroup() {
  ExtendInstead(OpenGroupCaption);
  Now.EntryText = "0";
  Now.CurrentValue = 0;
  Now.CurrentOp = "+";
  Now.LastAction = Biop;
  return {Now.EntryText, Now.CurrentValue, Now.CurrentOp, true};
}

OuterOperand ScientificEngine::BeginGroup() {
  if (!Now.PendingOp.empty() && !SecondOperandDue()) {
    // The group takes the place of the operand that was being typed.
    Now.EntryText = WriteNumber(Now.Accumulator);
    Now.CurrentValue = Now.Accumulator;
  }
  ShowInstead(OpenGroupCaption);
  Now.LastAction = LParen;
  return {Now.EntryText, Now.CurrentValue, Now.PendingOp, Now.PendingIsImplied};
}

/// Ignored when no operator is pending at all, as in "( 5 )" at the very start: the group stays open. That is
/// wanted.
void ScientificEngine::RightParen(const PressedKey& key) {
  Says.Say(key.SpokenName);
  if (Now.PendingOp.empty() || Now.ParenDepth < 1 || GroupIsEmpty()) return;
  EndExponent();
  if (!Now.ParenJustOpened) CompletePending();
  if (Now.ErrorState) return Says.SayError();
  if (!ShowsEntry()) Show();
  RestoreOuterOperand();
}

void ScientificEngine::RestoreOuterOperand() {
  const OuterOperand& outer = Now.ParenStack[static_cast<std::size_t>(--Now.ParenDepth)];
  Now.PrevEntryText = outer.Text;
  Now.Accumulator = outer.Value;
  Now.PendingOp = outer.Op;
  Now.PendingIsImplied = outer.Implied;
  Now.ParenJustOpened = false;
  Now.SecondOperandBegun = true;
  Now.DecimalEntered = false;
  Now.LastAction = RParen;
}

/// The last key was "(".
bool ScientificEngine::GroupIsEmpty() const {
  return Now.LastAction == LParen || (Now.LastAction == Biop && Now.ParenJustOpened);
}

/// In a group just opened the pending operator is the outer one's. Of very many groups the innermost are
/// told.
std::vector<OpenOperand> ScientificEngine::OpenCalculation() const {
  std::vector<OpenOperand> open;
  const auto depth = static_cast<std::size_t>(Now.ParenDepth);
  for (std::size_t level = depth - std::min(depth, MostGroupsTold); level < depth; ++level) {
    const OuterOperand& outer = Now.ParenStack[level];
    if (!outer.Op.empty() && !outer.Implied) open.push_back({Written(outer.Value), outer.Op});
    open.push_back({"", std::string(OpenGroupCaption)});
  }
  if (Now.ParenJustOpened || Now.PendingIsImplied) return open;
  for (OpenOperand& pending : EntryEngine::OpenCalculation()) open.push_back(std::move(pending));
  return open;
}

}  // namespace qves
