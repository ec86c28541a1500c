// The controls that several views have in the same place of their tables.
#pragma once

#include <array>

#include "model/Control.h"

namespace qves::shared {

// name, index, kind, caption, caption message, name message, help message, {panel, row, column, spans},
// traits

/// The display, at the left of its panel.
constexpr auto Display(int panel) {
  return std::to_array<ControlSpec>(
      {{"txtDisplay", NoIndex, ControlKind::TextBox, "", 0, 380, 1200, {panel, 0, 0}}});
}

/// The memory indicator, at the right of the display.
constexpr auto MemoryIndicator(int panel) {
  return std::to_array<ControlSpec>(
      {{"txtMemory", NoIndex, ControlKind::TextBox, "", 0, 382, 383, {panel, 0, 1}, Indicator}});
}

/// Backspace and clear entry, side by side.
constexpr auto CorrectionButtons(int panel) {
  return std::to_array<ControlSpec>({
      {"cmdBackspace", NoIndex, ControlKind::Button, "", 1075, 1082, 1076, {panel, 0, 0}},
      {"cmdCE", NoIndex, ControlKind::Button, "CE", 0, 1077, 1078, {panel, 0, 1}},
  });
}

/// Clear all, at the right of those.
constexpr auto ClearButton(int panel) {
  return std::to_array<ControlSpec>(
      {{"cmdMemory", 4, ControlKind::Button, "C", 0, 1062, 1063, {panel, 0, 2}}});
}

/// The memory buttons, one below the other.
constexpr auto MemoryButtons(int panel) {
  return std::to_array<ControlSpec>({
      {"cmdMemory", 0, ControlKind::Button, "MC", 0, 1054, 1055, {panel, 0, 0}},
      {"cmdMemory", 1, ControlKind::Button, "MR", 0, 1056, 1057, {panel, 1, 0}},
      {"cmdMemory", 2, ControlKind::Button, "MS", 0, 1058, 1059, {panel, 2, 0}},
      {"cmdMemory", 3, ControlKind::Button, "M+", 0, 1060, 1061, {panel, 3, 0}},
  });
}

/// The four operators, one below the other.
constexpr auto OperatorButtons(int panel) {
  return std::to_array<ControlSpec>({
      {"cmdBiOp", 1, ControlKind::Button, "/", 0, 1036, 1037, {panel, 0, 0}},
      {"cmdBiOp", 0, ControlKind::Button, "*", 0, 1034, 1035, {panel, 1, 0}},
      {"cmdBiOp", 2, ControlKind::Button, "-", 0, 1038, 1039, {panel, 2, 0}},
      {"cmdBiOp", 3, ControlKind::Button, "+", 0, 1040, 1041, {panel, 3, 0}},
  });
}

/// The digits 7 to 9, 4 to 6 and 1 to 3 in three rows of their panel.
constexpr auto UpperDigits(int panel, int row = 0) {
  return std::to_array<ControlSpec>({
      {"cmdDigit", 7, ControlKind::Button, "7", 0, 0, 1066, {panel, row, 0}},
      {"cmdDigit", 8, ControlKind::Button, "8", 0, 0, 1066, {panel, row, 1}},
      {"cmdDigit", 9, ControlKind::Button, "9", 0, 0, 1066, {panel, row, 2}},
      {"cmdDigit", 4, ControlKind::Button, "4", 0, 0, 1066, {panel, row + 1, 0}},
      {"cmdDigit", 5, ControlKind::Button, "5", 0, 0, 1066, {panel, row + 1, 1}},
      {"cmdDigit", 6, ControlKind::Button, "6", 0, 0, 1066, {panel, row + 1, 2}},
      {"cmdDigit", 1, ControlKind::Button, "1", 0, 0, 1066, {panel, row + 2, 0}},
      {"cmdDigit", 2, ControlKind::Button, "2", 0, 0, 1066, {panel, row + 2, 1}},
      {"cmdDigit", 3, ControlKind::Button, "3", 0, 0, 1066, {panel, row + 2, 2}},
  });
}

}  // namespace qves::shared
