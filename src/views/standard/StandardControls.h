// The controls of the Standard view, in Tab order, which is the reading order.
#pragma once

#include "model/Control.h"
#include "model/Form.h"

namespace qves::standard {

enum Panel { ScreenPanel, ClearPanel, MemoryPanel, DigitPanel, OperatorPanel, FunctionPanel };

inline constexpr PanelSpec Panels[] = {
    {ScreenPanel, 0, 0, 1, 4}, {ClearPanel, 1, 0, 1, 4}, {MemoryPanel, 2, 0},
    {DigitPanel, 2, 1},        {OperatorPanel, 2, 2},    {FunctionPanel, 2, 3},
};

inline constexpr auto Button = ControlKind::Button;
inline constexpr auto TextBox = ControlKind::TextBox;

// name, index, kind, caption, caption message, name message, help message, {panel, row, column, spans},
// traits
inline constexpr ControlSpec Controls[] = {
    {"txtDisplay", NoIndex, TextBox, "", 0, 380, 1200, {ScreenPanel, 0, 0}},
    {"txtMemory", NoIndex, TextBox, "", 0, 382, 383, {ScreenPanel, 0, 1}, Indicator},
    {"txtResult", NoIndex, TextBox, "", 0, 381, 1601, {ScreenPanel, 1, 0, 1, 2}, MultiLine},

    {"cmdBackspace", NoIndex, Button, "", 1075, 1082, 1076, {ClearPanel, 0, 0}},
    {"cmdCE", NoIndex, Button, "CE", 0, 1077, 1078, {ClearPanel, 0, 1}},
    {"cmdMemory", 4, Button, "C", 0, 1062, 1063, {ClearPanel, 0, 2}},

    {"cmdMemory", 0, Button, "MC", 0, 1054, 1055, {MemoryPanel, 0, 0}},
    {"cmdMemory", 1, Button, "MR", 0, 1056, 1057, {MemoryPanel, 1, 0}},
    {"cmdMemory", 2, Button, "MS", 0, 1058, 1059, {MemoryPanel, 2, 0}},
    {"cmdMemory", 3, Button, "M+", 0, 1060, 1061, {MemoryPanel, 3, 0}},

    {"cmdDigit", 7, Button, "7", 0, 0, 1066, {DigitPanel, 0, 0}},
    {"cmdDigit", 8, Button, "8", 0, 0, 1066, {DigitPanel, 0, 1}},
    {"cmdDigit", 9, Button, "9", 0, 0, 1066, {DigitPanel, 0, 2}},
    {"cmdDigit", 4, Button, "4", 0, 0, 1066, {DigitPanel, 1, 0}},
    {"cmdDigit", 5, Button, "5", 0, 0, 1066, {DigitPanel, 1, 1}},
    {"cmdDigit", 6, Button, "6", 0, 0, 1066, {DigitPanel, 1, 2}},
    {"cmdDigit", 1, Button, "1", 0, 0, 1066, {DigitPanel, 2, 0}},
    {"cmdDigit", 2, Button, "2", 0, 0, 1066, {DigitPanel, 2, 1}},
    {"cmdDigit", 3, Button, "3", 0, 0, 1066, {DigitPanel, 2, 2}},
    {"cmdDigit", 0, Button, "0", 0, 0, 1066, {DigitPanel, 3, 0, 1, 2}},
    {"cmdDecimal", NoIndex, Button, "", 1081, 1073, 1074, {DigitPanel, 3, 2}},

    {"cmdBiOp", 1, Button, "/", 0, 1036, 1037, {OperatorPanel, 0, 0}},
    {"cmdBiOp", 0, Button, "*", 0, 1034, 1035, {OperatorPanel, 1, 0}},
    {"cmdBiOp", 2, Button, "-", 0, 1038, 1039, {OperatorPanel, 2, 0}},
    {"cmdBiOp", 3, Button, "+", 0, 1040, 1041, {OperatorPanel, 3, 0}},

    {"cmdUOp", 0, Button, "sqrt", 0, 1000, 1001, {FunctionPanel, 0, 0}},
    {"cmdUOp", 3, Button, "%", 0, 1079, 1080, {FunctionPanel, 0, 1}},
    {"cmdUOp", 2, Button, "1/x", 0, 1004, 1005, {FunctionPanel, 1, 0}},
    {"cmdUOp", 1, Button, "+/-", 0, 1002, 1003, {FunctionPanel, 1, 1}},
    {"cmdEqual", NoIndex, Button, "=", 0, 0, 1072, {FunctionPanel, 2, 0, 2, 2}, DefaultButton},
};

}  // namespace qves::standard
