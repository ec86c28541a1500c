// The controls of the Statistics view, in Tab order, which is the reading order.
#pragma once

#include <array>

#include "model/Form.h"
#include "model/Join.h"
#include "views/SharedControls.h"
#include "views/statistics/StatisticsButtons.h"

namespace qves::statistics {

enum Panel { ScreenPanel, ListPanel, OptionPanel, ClearPanel, DigitPanel, DataPanel };

inline constexpr PanelSpec Panels[] = {
    {ScreenPanel, 0, 0, 1, 3}, {ListPanel, 1, 0, 2, 1}, {OptionPanel, 1, 1},
    {ClearPanel, 1, 2},        {DigitPanel, 2, 1},      {DataPanel, 2, 2},
};

inline constexpr auto CheckBox = ControlKind::CheckBox;
inline constexpr auto ListView = ControlKind::ListView;

// name, index, kind, caption, caption message, name message, help message, {panel, row, column, spans},
// traits, items, name message for a screen reader
inline constexpr auto Controls = Join(
    shared::Display(ScreenPanel),
    std::to_array<ControlSpec>({
        {"lvwData", NoIndex, ListView, "", 0, 1412, 1415, {ListPanel, 0, 0, 1, 2}},
        {"lvwData2", NoIndex, ListView, "", 0, 1430, 1432, {ListPanel, 0, 2, 1, 2}},

        {"cbIgnoreZero",
         NoIndex,
         CheckBox,
         "",
         1140,
         1138,
         1139,
         {OptionPanel, 0, 0},
         PlainControl,
         {},
         1140},
        {"cbUseList2", NoIndex, CheckBox, "", 1143, 1141, 1142, {OptionPanel, 0, 1}, PlainControl, {}, 1143},
    }),
    shared::CorrectionButtons(ClearPanel), shared::UpperDigits(DigitPanel),
    std::to_array<ControlSpec>({
        shared::Digit(0, {DigitPanel, 3, 0}),
        At(Buttons::Point, {DigitPanel, 3, 1}),
        At(Buttons::Sign, {DigitPanel, 3, 2}),

        At(Buttons::AddPoint, {DataPanel, 0, 0, 1, 2}, DefaultButton),
        At(Buttons::RemovePoint, {DataPanel, 1, 0}),
        At(Buttons::ClearList, {DataPanel, 1, 1}),
        At(Buttons::Run, {DataPanel, 2, 0, 1, 2}),
        At(Buttons::DegreesOfFreedom, {DataPanel, 3, 0}),
        At(Buttons::Alpha, {DataPanel, 3, 1}),
    }));

}  // namespace qves::statistics
