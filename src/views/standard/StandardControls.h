// The controls of the Standard view, in Tab order, which is the reading order.
#pragma once

#include <array>

#include "model/Form.h"
#include "model/Join.h"
#include "views/SharedControls.h"

namespace qves::standard {

enum Panel { ScreenPanel, ClearPanel, MemoryPanel, DigitPanel, OperatorPanel, FunctionPanel };

inline constexpr PanelSpec Panels[] = {
    {ScreenPanel, 0, 0, 1, 4}, {ClearPanel, 1, 0, 1, 4}, {MemoryPanel, 2, 0},
    {DigitPanel, 2, 1},        {OperatorPanel, 2, 2},    {FunctionPanel, 2, 3},
};

inline constexpr auto TextBox = ControlKind::TextBox;

// name, index, kind, caption, caption message, name message, help message, {panel, row, column, spans},
// traits
inline constexpr auto Controls =
    Join(shared::Display(ScreenPanel), shared::MemoryIndicator(ScreenPanel),
         std::to_array<ControlSpec>({
             {"txtResult", NoIndex, TextBox, "", 0, 381, 1601, {ScreenPanel, 1, 0, 1, 2}, MultiLine},
         }),
         shared::CorrectionButtons(ClearPanel), shared::ClearButton(ClearPanel),
         shared::MemoryButtons(MemoryPanel), shared::UpperDigits(DigitPanel),
         std::to_array<ControlSpec>({
             shared::Digit(0, {DigitPanel, 3, 0, 1, 2}),
             At(Buttons::Point, {DigitPanel, 3, 2}),
         }),
         shared::OperatorButtons(OperatorPanel),
         std::to_array<ControlSpec>({
             At(Buttons::Sqrt, {FunctionPanel, 0, 0}),
             At(Buttons::Percent, {FunctionPanel, 0, 1}),
             At(Buttons::Reciprocal, {FunctionPanel, 1, 0}),
             At(Buttons::Sign, {FunctionPanel, 1, 1}),
             At(Buttons::Equals, {FunctionPanel, 2, 0, 2, 2}, DefaultButton),
         }));

}  // namespace qves::standard
