// The controls of the Scientific view, in Tab order, which is the reading order.
#pragma once

#include <array>

#include "model/Form.h"
#include "model/Join.h"
#include "views/SharedControls.h"
#include "views/scientific/ScientificButtons.h"

namespace qves::scientific {

enum Panel {
  ScreenPanel,
  ModePanel,
  ClearPanel,
  FunctionPanel,
  BitPanel,
  MemoryPanel,
  DigitPanel,
  OperatorPanel
};

inline constexpr PanelSpec Panels[] = {
    {ScreenPanel, 0, 0, 1, 5}, {ModePanel, 1, 0, 1, 3}, {ClearPanel, 1, 3, 1, 2}, {FunctionPanel, 2, 0},
    {BitPanel, 2, 1},          {MemoryPanel, 2, 2},     {DigitPanel, 2, 3},       {OperatorPanel, 2, 4},
};

inline constexpr ListItemSpec NumberBases[] = {{1104, 1114}, {1105, 1115}, {1106, 1116}, {1107, 1117}};
inline constexpr ListItemSpec AngleUnits[] = {{1108, 1111}, {1109, 1112}, {1110, 1113}};

inline constexpr auto TextBox = ControlKind::TextBox;
inline constexpr auto CheckBox = ControlKind::CheckBox;
inline constexpr auto ListBox = ControlKind::ListBox;

// name, index, kind, caption, caption message, name message, help message, {panel, row, column, spans},
// traits, items, name message for a screen reader
inline constexpr auto Controls = Join(
    shared::Display(ScreenPanel), shared::MemoryIndicator(ScreenPanel),
    std::to_array<ControlSpec>({
        {"lltNumBase", NoIndex, ListBox, "", 0, 1118, 1119, {ModePanel, 0, 0, 2}, PlainControl, NumberBases},
        {"lltTrigMode", NoIndex, ListBox, "", 0, 1120, 1121, {ModePanel, 0, 1, 2}, PlainControl, AngleUnits},
        {"cbInv", NoIndex, CheckBox, "inv", 0, 1132, 1136, {ModePanel, 0, 2}, PlainControl, {}, 387},
        {"cbHyp", NoIndex, CheckBox, "hyp", 0, 1133, 1137, {ModePanel, 1, 2}, PlainControl, {}, 388},
    }),
    shared::CorrectionButtons(ClearPanel), shared::ClearButton(ClearPanel),
    std::to_array<ControlSpec>({
        At(Buttons::Sin, {FunctionPanel, 0, 0}),
        At(Buttons::Cos, {FunctionPanel, 0, 1}),
        At(Buttons::Tan, {FunctionPanel, 0, 2}),
        At(Buttons::Ln, {FunctionPanel, 1, 0}),
        At(Buttons::Log, {FunctionPanel, 1, 1}),
        At(Buttons::ExpOfX, {FunctionPanel, 1, 2}),
        At(Buttons::Square, {FunctionPanel, 2, 0}),
        At(Buttons::Cube, {FunctionPanel, 2, 1}),
        At(Buttons::Power, {FunctionPanel, 2, 2}),
        At(Buttons::Sqrt, {FunctionPanel, 3, 0}),
        At(Buttons::Reciprocal, {FunctionPanel, 3, 1}),
        At(Buttons::Factorial, {FunctionPanel, 3, 2}),
        At(Buttons::Int, {FunctionPanel, 4, 0}),
        At(Buttons::Random, {FunctionPanel, 4, 1}),
        At(Buttons::Notation, {FunctionPanel, 4, 2}),
        At(Buttons::LeftParen, {FunctionPanel, 5, 0}),
        At(Buttons::RightParen, {FunctionPanel, 5, 1}),
        At(Buttons::Exponent, {FunctionPanel, 5, 2}),

        At(Buttons::And, {BitPanel, 0, 0}),
        At(Buttons::Or, {BitPanel, 1, 0}),
        At(Buttons::Xor, {BitPanel, 2, 0}),
        At(Buttons::Not, {BitPanel, 3, 0}),
        At(Buttons::Lsh, {BitPanel, 4, 0}),
        At(Buttons::Mod, {BitPanel, 5, 0}),
    }),
    shared::MemoryButtons(MemoryPanel),
    std::to_array<ControlSpec>({
        At(Buttons::Pi, {MemoryPanel, 4, 0, 2}),

        shared::Digit(13, {DigitPanel, 0, 0}),
        shared::Digit(14, {DigitPanel, 0, 1}),
        shared::Digit(15, {DigitPanel, 0, 2}),
        shared::Digit(10, {DigitPanel, 1, 0}),
        shared::Digit(11, {DigitPanel, 1, 1}),
        shared::Digit(12, {DigitPanel, 1, 2}),
    }),
    shared::UpperDigits(DigitPanel, 2),
    std::to_array<ControlSpec>({
        shared::Digit(0, {DigitPanel, 5, 0}),
        At(Buttons::Point, {DigitPanel, 5, 1}),
        At(Buttons::Sign, {DigitPanel, 5, 2}),
    }),
    shared::OperatorButtons(OperatorPanel),
    std::to_array<ControlSpec>({
        At(Buttons::Equals, {OperatorPanel, 4, 0, 2}, DefaultButton),
    }));

}  // namespace qves::scientific
