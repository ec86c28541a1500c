// What a calculation holds besides the number shown. Nothing here ever faults.
#include "engine/EntryEngine.h"
#include "formulas/Numbers.h"

namespace qves {

std::vector<OpenOperand> EntryEngine::OpenCalculation() const {
  if (Now.PendingOp.empty()) return {};
  return {{Written(Now.SecondOperandBegun ? Now.Accumulator : Now.CurrentValue), Now.PendingOp}};
}

/// A number that the number base cannot hold is told as it is.
std::string EntryEngine::Written(double value) const {
  try {
    return WriteNumber(value);
  } catch (const ArithmeticFault&) {
    return NumberToText(value);
  }
}

std::optional<std::string> EntryEngine::StoredNumber() const {
  if (Now.MemoryCell.Indicator().empty()) return std::nullopt;
  try {
    return RecalledText();
  } catch (const ArithmeticFault&) {
    return Now.MemoryCell.Text();
  }
}

}  // namespace qves
