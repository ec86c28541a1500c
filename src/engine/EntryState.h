// What a calculation is, apart from the engine that acts on it: a value that can be copied, compared and put
// back. Two equal states are the same calculation.
#pragma once

#include <string>

#include "engine/ActionKind.h"
#include "engine/MemoryRegister.h"
#include "model/ArithmeticFault.h"
#include "model/StateField.h"
#include "voicing/VoicedText.h"

namespace qves {

struct EntryState {
  std::string PrevEntryText = "0";  ///< the entry when the second operand was begun
  std::string EntryText = "0";      ///< the number being typed, or the last result
  std::string InsteadOfEntry;       ///< what the display shows in place of the entry; "" for the entry itself
  ValueKind EntryKind = ValueKind::Number;
  double Accumulator = 0;   ///< the first operand of the pending operator
  double CurrentValue = 0;  ///< of the entry
  bool DecimalEntered = false;
  std::string PendingOp;  ///< waits for its second operand; "" for none
  std::string CurrentOp;  ///< the operator pressed last
  ActionKind LastAction = ActionKind::None;
  bool ErrorState = false;
  FaultReason Reason = FaultReason::NoSolution;  ///< of the error state
  /// By a digit, a point, a clear entry, a recall or an inner result after the pending operator.
  bool SecondOperandBegun = false;
  MemoryRegister MemoryCell;

  const std::string& DisplayText() const { return InsteadOfEntry.empty() ? EntryText : InsteadOfEntry; }
  bool operator==(const EntryState&) const = default;
};

/// The fields by their names, for those who look into a calculation from outside.
StateFields Describe(const EntryState& state);

}  // namespace qves
