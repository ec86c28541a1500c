// The controls of the Statistics view, in Tab order, which is the reading order.
#pragma once

#include <array>

#include "model/Form.h"
#include "model/Join.h"
#include "views/SharedControls.h"

namespace qves::statistics {

enum Panel { ScreenPanel, ListPanel, OptionPanel, ClearPanel, DigitPanel, DataPanel };

inline constexpr PanelSpec Panels[] = {
    {ScreenPanel, 0, 0, 1, 3}, {ListPanel, 1, 0, 2, 1}, {OptionPanel, 1, 1},
    {ClearPanel, 1, 2},        {DigitPanel, 2, 1},      {DataPanel, 2, 2},
};

inline constexpr auto Button = ControlKind::Button;
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
        {"cmdDigit", 0, Button, "0", 0, 0, 1066, {DigitPanel, 3, 0}},
        {"cmdDecimal", NoIndex, Button, "", 1081, 1073, 1074, {DigitPanel, 3, 1}},
        {"cmdSign", NoIndex, Button, "+/-", 0, 1002, 1003, {DigitPanel, 3, 2}},

        {"cmdAdd", NoIndex, Button, "", 1400, 0, 1402, {DataPanel, 0, 0, 1, 2}, DefaultButton},
        {"cmdRemove", NoIndex, Button, "", 1403, 0, 1405, {DataPanel, 1, 0}},
        {"cmdClear", NoIndex, Button, "", 1406, 0, 1408, {DataPanel, 1, 1}},
        {"cmdRun", NoIndex, Button, "", 1409, 0, 1410, {DataPanel, 2, 0, 1, 2}},
        {"cmdStat", 0, Button, "df", 0, 1441, 1443, {DataPanel, 3, 0}},
        {"cmdStat", 1, Button, "alpha", 0, 1442, 1444, {DataPanel, 3, 1}},
    }));

}  // namespace qves::statistics
