// A calculation of the Scientific view.
#pragma once

#include <cstdint>
#include <string>

#include "engine/EntryState.h"
#include "formulas/NumberBases.h"
#include "model/SharedList.h"

namespace qves {

/// How the entry is written. The three exclude each other; whether a group has just been opened and whether
/// the second operand has been begun goes with any of them.
enum class EntryForm {
  Plain,
  Notation,  ///< results are shown in scientific notation, until the next clear-all
  Exponent,  ///< the keys type the entry's exponent
};

/// What waits outside of an open group.
struct OuterOperand {
  std::string Text;
  double Value = 0;
  std::string Op;
  bool Implied = false;  ///< nobody typed it: the "0 +" of a group within a group

  bool operator==(const OuterOperand&) const = default;
};

struct ScientificState : EntryState {
  EntryForm Form = EntryForm::Plain;
  std::string ExpMantissa;
  std::string ExpSign;
  std::string ExpDigits;
  int NumBase = NumberBase::Decimal;
  int MemoryBase = NumberBase::Decimal;  ///< the base that the memory is written in

  std::int16_t ParenDepth = 0;
  SharedList<OuterOperand> ParenStack;  ///< keeps its old elements when a group is closed
  bool ParenJustOpened = false;         ///< until the first binary operator of the group
  bool PendingIsImplied = false;        ///< the pending operator and its operand, as in OuterOperand

  bool operator==(const ScientificState&) const = default;
};

StateFields Describe(const ScientificState& state);

}  // namespace qves
