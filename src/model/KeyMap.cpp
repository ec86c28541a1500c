#include "model/KeyMap.h"

namespace qves {

bool Allows(ShiftRule rule, int shift) {
  switch (rule) {
    case ShiftRule::Any:
      return true;
    case ShiftRule::None:
      return shift == NoShift;
    case ShiftRule::Shift:
      return shift == ShiftBit;
    case ShiftRule::Control:
      return shift == ControlBit;
    case ShiftRule::NotControl:
      return shift != ControlBit;
  }
  return false;
}

namespace {

/// Of a key with AltGr only what it types counts.
bool Matches(const KeyRow& row, const KeyEvent& event) {
  if (row.Character != 0 && row.Character == event.Character) return true;
  return row.FirstCode != 0 && (event.Shift & AltBit) == 0 && event.Code >= row.FirstCode &&
         event.Code <= row.LastCode && Allows(row.Shift, event.Shift);
}

}  // namespace

const KeyRow* FindKeyRow(std::span<const KeyRow> rows, const KeyEvent& event,
                         const std::function<bool(const KeyRow&)>& counts) {
  for (const KeyRow& row : rows)
    if (Matches(row, event) && counts(row)) return &row;
  return nullptr;
}

}  // namespace qves
