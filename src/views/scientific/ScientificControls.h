// The controls of the Scientific view, in Tab order, which is the reading order.
#pragma once

#include <array>

#include "model/Form.h"
#include "model/Join.h"
#include "views/SharedControls.h"

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

inline constexpr auto Button = ControlKind::Button;
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
        {"cmdUOp", 4, Button, "sin", 0, 1008, 1009, {FunctionPanel, 0, 0}},
        {"cmdUOp", 5, Button, "cos", 0, 1010, 1011, {FunctionPanel, 0, 1}},
        {"cmdUOp", 6, Button, "tan", 0, 1012, 1013, {FunctionPanel, 0, 2}},
        {"cmdUOp", 11, Button, "ln", 0, 1022, 1023, {FunctionPanel, 1, 0}},
        {"cmdUOp", 12, Button, "log", 0, 1024, 1025, {FunctionPanel, 1, 1}},
        {"cmdUOp", 14, Button, "e^x", 0, 1028, 1029, {FunctionPanel, 1, 2}},
        {"cmdUOp", 9, Button, "x^2", 0, 1018, 1019, {FunctionPanel, 2, 0}},
        {"cmdUOp", 10, Button, "x^3", 0, 1020, 1021, {FunctionPanel, 2, 1}},
        {"cmdBiOp", 8, Button, "x^y", 0, 1050, 1051, {FunctionPanel, 2, 2}},
        {"cmdUOp", 0, Button, "sqrt", 0, 1000, 1001, {FunctionPanel, 3, 0}},
        {"cmdUOp", 2, Button, "1/x", 0, 1004, 1005, {FunctionPanel, 3, 1}},
        {"cmdUOp", 8, Button, "n!", 0, 1016, 1017, {FunctionPanel, 3, 2}},
        {"cmdUOp", 3, Button, "Int", 0, 1006, 1007, {FunctionPanel, 4, 0}},
        {"cmdUOp", 16, Button, "Rnd", 0, 1032, 1033, {FunctionPanel, 4, 1}},
        {"cmdUOp", 13, Button, "F-E", 0, 1026, 1027, {FunctionPanel, 4, 2}},
        {"cmdLeftParen", NoIndex, Button, "(", 0, 1068, 1070, {FunctionPanel, 5, 0}},
        {"cmdRightParen", NoIndex, Button, ")", 0, 1069, 1071, {FunctionPanel, 5, 1}},
        {"cmdUOp", 15, Button, "Exp", 0, 1030, 1031, {FunctionPanel, 5, 2}},

        {"cmdBiOp", 4, Button, "And", 0, 1042, 1043, {BitPanel, 0, 0}},
        {"cmdBiOp", 5, Button, "Or", 0, 1044, 1045, {BitPanel, 1, 0}},
        {"cmdBiOp", 6, Button, "Xor", 0, 1046, 1047, {BitPanel, 2, 0}},
        {"cmdUOp", 7, Button, "Not", 0, 1014, 1015, {BitPanel, 3, 0}},
        {"cmdBiOp", 9, Button, "Lsh", 0, 1052, 1053, {BitPanel, 4, 0}},
        {"cmdBiOp", 7, Button, "Mod", 0, 1048, 1049, {BitPanel, 5, 0}},
    }),
    shared::MemoryButtons(MemoryPanel),
    std::to_array<ControlSpec>({
        {"cmdMemory", 5, Button, "Pi", 0, 1064, 1065, {MemoryPanel, 4, 0, 2}},

        {"cmdDigit", 13, Button, "D", 0, 0, 1067, {DigitPanel, 0, 0}},
        {"cmdDigit", 14, Button, "E", 0, 0, 1067, {DigitPanel, 0, 1}},
        {"cmdDigit", 15, Button, "F", 0, 0, 1067, {DigitPanel, 0, 2}},
        {"cmdDigit", 10, Button, "A", 0, 0, 1067, {DigitPanel, 1, 0}},
        {"cmdDigit", 11, Button, "B", 0, 0, 1067, {DigitPanel, 1, 1}},
        {"cmdDigit", 12, Button, "C", 0, 0, 1067, {DigitPanel, 1, 2}},
    }),
    shared::UpperDigits(DigitPanel, 2),
    std::to_array<ControlSpec>({
        {"cmdDigit", 0, Button, "0", 0, 0, 1066, {DigitPanel, 5, 0}},
        {"cmdDecimal", NoIndex, Button, "", 1081, 1073, 1074, {DigitPanel, 5, 1}},
        {"cmdUOp", 1, Button, "+/-", 0, 1002, 1003, {DigitPanel, 5, 2}},
    }),
    shared::OperatorButtons(OperatorPanel),
    std::to_array<ControlSpec>({
        {"cmdEqual", NoIndex, Button, "=", 0, 0, 1072, {OperatorPanel, 4, 0, 2}, DefaultButton},
    }));

}  // namespace qves::scientific
