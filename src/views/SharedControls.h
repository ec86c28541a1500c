// The controls that several views have in the same place of their tables.
#pragma once

#include <array>

#include "engine/Buttons.h"

namespace qves {

/// A row of a control table: a button in its cell.
constexpr ControlSpec At(ControlSpec button, GridCell cell, unsigned traits = PlainControl) {
  button.Cell = cell;
  button.Traits = traits;
  return button;
}

}  // namespace qves

namespace qves::shared {

/// A digit, also one that only the hexadecimal base has.
constexpr ControlSpec Digit(int value, GridCell cell) {
  constexpr std::string_view captions = "0123456789ABCDEF";
  const int help = value < 10 ? 1066 : 1067;
  return {Buttons::Digits,
          value,
          ControlKind::Button,
          captions.substr(static_cast<std::size_t>(value), 1),
          0,
          0,
          help,
          cell};
}

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
      At(Buttons::Backspace, {panel, 0, 0}),
      At(Buttons::ClearEntry, {panel, 0, 1}),
  });
}

/// Clear all, at the right of those.
constexpr auto ClearButton(int panel) {
  return std::to_array<ControlSpec>({At(Buttons::ClearAll, {panel, 0, 2})});
}

/// The memory buttons, one below the other.
constexpr auto MemoryButtons(int panel) {
  return std::to_array<ControlSpec>({
      At(Buttons::MemoryClear, {panel, 0, 0}),
      At(Buttons::MemoryRecall, {panel, 1, 0}),
      At(Buttons::MemoryStore, {panel, 2, 0}),
      At(Buttons::MemoryAdd, {panel, 3, 0}),
  });
}

/// The four operators, one below the other.
constexpr auto OperatorButtons(int panel) {
  return std::to_array<ControlSpec>({
      At(Buttons::Divide, {panel, 0, 0}),
      At(Buttons::Multiply, {panel, 1, 0}),
      At(Buttons::Subtract, {panel, 2, 0}),
      At(Buttons::Add, {panel, 3, 0}),
  });
}

/// The digits 7 to 9, 4 to 6 and 1 to 3 in three rows of their panel.
constexpr auto UpperDigits(int panel, int row = 0) {
  return std::to_array<ControlSpec>({
      Digit(7, {panel, row, 0}),
      Digit(8, {panel, row, 1}),
      Digit(9, {panel, row, 2}),
      Digit(4, {panel, row + 1, 0}),
      Digit(5, {panel, row + 1, 1}),
      Digit(6, {panel, row + 1, 2}),
      Digit(1, {panel, row + 2, 0}),
      Digit(2, {panel, row + 2, 1}),
      Digit(3, {panel, row + 2, 2}),
  });
}

}  // namespace qves::shared
