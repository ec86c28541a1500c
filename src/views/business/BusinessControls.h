// The controls of the Business view, in Tab order, which is the reading order.
#pragma once

#include <array>

#include "model/Form.h"
#include "model/Join.h"
#include "views/SharedControls.h"

namespace qves::business {

enum Panel {
  ScreenPanel,
  OptionPanel,
  ClearPanel,
  RegisterPanel,
  PrefixPanel,
  FunctionPanel,
  DigitPanel,
  MemoryPanel,
  OperatorPanel
};

inline constexpr PanelSpec Panels[] = {
    {ScreenPanel, 0, 0, 1, 3}, {OptionPanel, 1, 0, 1, 2}, {ClearPanel, 1, 2},
    {RegisterPanel, 2, 0},     {PrefixPanel, 2, 1},       {FunctionPanel, 2, 2},
    {DigitPanel, 3, 0},        {MemoryPanel, 3, 1},       {OperatorPanel, 3, 2},
};

inline constexpr ListItemSpec InterestBases[] = {{NoMessage, 1563, "360"}, {NoMessage, 1564, "365"}};
inline constexpr ListItemSpec PaymentModes[] = {{1566, 1568}, {1567, 1569}};
inline constexpr ListItemSpec OddPeriods[] = {{1571, 1573}, {1572, 1574}};

inline constexpr auto Button = ControlKind::Button;
inline constexpr auto TextBox = ControlKind::TextBox;
inline constexpr auto ListBox = ControlKind::ListBox;

// name, index, kind, caption, caption message, name message, help message, {panel, row, column, spans},
// traits, items
inline constexpr auto Controls = Join(
    shared::Display(ScreenPanel), shared::MemoryIndicator(ScreenPanel),
    std::to_array<ControlSpec>({
        {"lltINTBase", NoIndex, ListBox, "", 0, 384, 1565, {OptionPanel, 0, 0}, PlainControl, InterestBases},
        {"lltPMTMode", NoIndex, ListBox, "", 0, 385, 1570, {OptionPanel, 0, 1}, PlainControl, PaymentModes},
        {"lltOddPeriod", NoIndex, ListBox, "", 0, 386, 1575, {OptionPanel, 0, 2}, PlainControl, OddPeriods},
    }),
    shared::CorrectionButtons(ClearPanel), shared::ClearButton(ClearPanel),
    std::to_array<ControlSpec>({
        {"cmdMemory", 5, Button, "CF", 0, 1552, 1553, {ClearPanel, 0, 3}},

        {"cmdFinancial", 0, Button, "n", 0, 1500, 1501, {RegisterPanel, 0, 0}},
        {"cmdFinancial", 1, Button, "i", 0, 1502, 1503, {RegisterPanel, 0, 1}},
        {"cmdFinancial", 2, Button, "PV", 0, 1504, 1505, {RegisterPanel, 0, 2}},
        {"cmdFinancial", 3, Button, "PMT", 0, 1506, 1507, {RegisterPanel, 1, 0}},
        {"cmdFinancial", 4, Button, "FV", 0, 1508, 1509, {RegisterPanel, 1, 1}},
        {"cmdFinancial", 5, Button, "CF0", 0, 1510, 1511, {RegisterPanel, 1, 2}},
        {"cmdFinancial", 6, Button, "CFj", 0, 1512, 1513, {RegisterPanel, 2, 0}},
        {"cmdFinancial", 7, Button, "Nj", 0, 1514, 1515, {RegisterPanel, 2, 1}},
        {"cmdFinancial", 8, Button, "j", 0, 1516, 1517, {RegisterPanel, 2, 2}},
        {"cmdFinancial", 9, Button, "beg", 0, 1518, 1519, {RegisterPanel, 3, 0}},
        {"cmdFinancial", 10, Button, "end", 0, 1520, 1521, {RegisterPanel, 3, 1}},
        {"cmdXchange", NoIndex, Button, "x<>y", 0, 1560, 1561, {RegisterPanel, 3, 2}},

        {"cmdCal", NoIndex, Button, "CAL", 0, 1558, 1559, {PrefixPanel, 0, 0}, HelpOnFocus},
        {"cmdRecall", NoIndex, Button, "RCL", 0, 1554, 1555, {PrefixPanel, 1, 0}, HelpOnFocus},
        {"cmdSTO", NoIndex, Button, "STO", 0, 1556, 1557, {PrefixPanel, 2, 0}, HelpOnFocus},

        {"cmdUOp", 7, Button, "NPV", 0, 1528, 1529, {FunctionPanel, 0, 0}},
        {"cmdUOp", 8, Button, "IRR", 0, 1530, 1531, {FunctionPanel, 0, 1}},
        {"cmdUOp", 12, Button, "AMT", 0, 1538, 1539, {FunctionPanel, 0, 2}},
        {"cmdUOp", 4, Button, "INT", 0, 1522, 1523, {FunctionPanel, 0, 3}, HelpOnFocus},
        {"cmdUOp", 10, Button, "SL", 0, 1534, 1535, {FunctionPanel, 1, 0}},
        {"cmdUOp", 11, Button, "SY", 0, 1536, 1537, {FunctionPanel, 1, 1}},
        {"cmdUOp", 9, Button, "DB", 0, 1532, 1533, {FunctionPanel, 1, 2}},
        {"cmdBiOp", 5, Button, "%T", 0, 1548, 1549, {FunctionPanel, 1, 3}, HelpOnFocus},
        {"cmdUOp", 13, Button, "Price", 0, 1540, 1541, {FunctionPanel, 2, 0}},
        {"cmdUOp", 14, Button, "YTM", 0, 1542, 1543, {FunctionPanel, 2, 1}},
        {"cmdUOp", 5, Button, "x12", 0, 1524, 1525, {FunctionPanel, 2, 2}, HelpOnFocus},
        {"cmdBiOp", 6, Button, "d%", 0, 1550, 1551, {FunctionPanel, 2, 3}, HelpOnFocus},
        {"cmdUOp", 15, Button, "DYS", 0, 1544, 1545, {FunctionPanel, 3, 0}, HelpOnFocus},
        {"cmdBiOp", 4, Button, "date", 0, 1546, 1547, {FunctionPanel, 3, 1}, HelpOnFocus},
        {"cmdUOp", 6, Button, "/12", 0, 1526, 1527, {FunctionPanel, 3, 2}, HelpOnFocus},
    }),
    shared::UpperDigits(DigitPanel),
    std::to_array<ControlSpec>({
        {"cmdDigit", 0, Button, "0", 0, 0, 1066, {DigitPanel, 3, 0}},
        {"cmdDecimal", NoIndex, Button, "", 1081, 1073, 1074, {DigitPanel, 3, 1}},
        {"cmdUOp", 1, Button, "+/-", 0, 1002, 1003, {DigitPanel, 3, 2}},
    }),
    shared::MemoryButtons(MemoryPanel),
    std::to_array<ControlSpec>({
        {"cmdBiOp", 1, Button, "/", 0, 1036, 1037, {OperatorPanel, 0, 0}},
        {"cmdUOp", 0, Button, "sqrt", 0, 1000, 1001, {OperatorPanel, 0, 1}},
        {"cmdBiOp", 0, Button, "*", 0, 1034, 1035, {OperatorPanel, 1, 0}},
        {"cmdUOp", 3, Button, "%", 0, 1079, 1080, {OperatorPanel, 1, 1}},
        {"cmdBiOp", 2, Button, "-", 0, 1038, 1039, {OperatorPanel, 2, 0}},
        {"cmdUOp", 2, Button, "1/x", 0, 1004, 1005, {OperatorPanel, 2, 1}},
        {"cmdBiOp", 3, Button, "+", 0, 1040, 1041, {OperatorPanel, 3, 0}},
        {"cmdEqual", NoIndex, Button, "=", 0, 0, 1072, {OperatorPanel, 3, 1}, DefaultButton},
    }));

}  // namespace qves::business
