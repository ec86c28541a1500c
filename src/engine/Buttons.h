// The buttons that several views have: what each is called in the key maps, the control tables and the
// operator tables. Where one stands is the control table's business.
#pragma once

#include <string_view>

#include "model/Control.h"
#include "services/MessageIds.h"

namespace qves {

/// A button wherever it stands. Its caption is also the name of its operator.
constexpr ControlSpec ButtonSpec(std::string_view name, int index, std::string_view caption, int nameMessage,
                                 int helpMessage) {
  return {name, index, ControlKind::Button, caption, NoMessage, nameMessage, helpMessage};
}

namespace Buttons {

inline constexpr std::string_view Digits = "cmdDigit";  ///< an array, the index is the digit's value

// name, index, caption, name message (0: the caption is the name), help message
inline constexpr ControlSpec Multiply = ButtonSpec("cmdBiOp", 0, "*", 1034, 1035);
inline constexpr ControlSpec Divide = ButtonSpec("cmdBiOp", 1, "/", 1036, 1037);
inline constexpr ControlSpec Subtract = ButtonSpec("cmdBiOp", 2, "-", 1038, 1039);
inline constexpr ControlSpec Add = ButtonSpec("cmdBiOp", 3, "+", 1040, 1041);
inline constexpr ControlSpec Equals = ButtonSpec("cmdEqual", NoIndex, "=", 0, 1072);

inline constexpr ControlSpec Sqrt = ButtonSpec("cmdUOp", 0, "sqrt", SquareRootMessage, 1001);
inline constexpr ControlSpec Sign = ButtonSpec("cmdUOp", 1, "+/-", 1002, 1003);
inline constexpr ControlSpec Reciprocal = ButtonSpec("cmdUOp", 2, "1/x", 1004, 1005);
inline constexpr ControlSpec Percent = ButtonSpec("cmdUOp", 3, "%", 1079, 1080);

inline constexpr ControlSpec MemoryClear = ButtonSpec("cmdMemory", 0, "MC", 1054, 1055);
inline constexpr ControlSpec MemoryRecall = ButtonSpec("cmdMemory", 1, "MR", 1056, 1057);
inline constexpr ControlSpec MemoryStore = ButtonSpec("cmdMemory", 2, "MS", 1058, 1059);
inline constexpr ControlSpec MemoryAdd = ButtonSpec("cmdMemory", 3, "M+", 1060, 1061);
inline constexpr ControlSpec ClearAll = ButtonSpec("cmdMemory", 4, "C", 1062, 1063);
inline constexpr ControlSpec Pi = ButtonSpec("cmdMemory", 5, "Pi", 1064, 1065);

// name, index, kind, caption, caption message, name message, help message
inline constexpr ControlSpec Point = {"cmdDecimal", NoIndex, ControlKind::Button, "", DecimalSeparatorMessage,
                                      PointMessage, 1074};
inline constexpr ControlSpec Backspace = {"cmdBackspace", NoIndex, ControlKind::Button, "", 1075, 1082, 1076};
inline constexpr ControlSpec ClearEntry = ButtonSpec("cmdCE", NoIndex, "CE", 1077, 1078);

}  // namespace Buttons

}  // namespace qves
