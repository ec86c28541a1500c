// The buttons of the Scientific view: what each is called in its tables.
#pragma once

#include "engine/Buttons.h"

namespace qves::scientific::Buttons {

using namespace qves::Buttons;

// name, index, caption, name message (0: the caption is the name), help message
inline constexpr ControlSpec And = ButtonSpec("cmdBiOp", 4, "And", 1042, 1043);
inline constexpr ControlSpec Or = ButtonSpec("cmdBiOp", 5, "Or", 1044, 1045);
inline constexpr ControlSpec Xor = ButtonSpec("cmdBiOp", 6, "Xor", 1046, 1047);
inline constexpr ControlSpec Mod = ButtonSpec("cmdBiOp", 7, "Mod", 1048, 1049);
inline constexpr ControlSpec Power = ButtonSpec("cmdBiOp", 8, "x^y", 1050, 1051);
inline constexpr ControlSpec Lsh = ButtonSpec("cmdBiOp", 9, "Lsh", 1052, 1053);

inline constexpr ControlSpec Int = ButtonSpec("cmdUOp", 3, "Int", 1006, 1007);
inline constexpr ControlSpec Sin = ButtonSpec("cmdUOp", 4, "sin", 1008, 1009);
inline constexpr ControlSpec Cos = ButtonSpec("cmdUOp", 5, "cos", 1010, 1011);
inline constexpr ControlSpec Tan = ButtonSpec("cmdUOp", 6, "tan", 1012, 1013);
inline constexpr ControlSpec Not = ButtonSpec("cmdUOp", 7, "Not", 1014, 1015);
inline constexpr ControlSpec Factorial = ButtonSpec("cmdUOp", 8, "n!", 1016, 1017);
inline constexpr ControlSpec Square = ButtonSpec("cmdUOp", 9, "x^2", 1018, 1019);
inline constexpr ControlSpec Cube = ButtonSpec("cmdUOp", 10, "x^3", 1020, 1021);
inline constexpr ControlSpec Ln = ButtonSpec("cmdUOp", 11, "ln", 1022, 1023);
inline constexpr ControlSpec Log = ButtonSpec("cmdUOp", 12, "log", 1024, 1025);
inline constexpr ControlSpec Notation = ButtonSpec("cmdUOp", 13, "F-E", 1026, 1027);
inline constexpr ControlSpec ExpOfX = ButtonSpec("cmdUOp", 14, "e^x", 1028, 1029);
inline constexpr ControlSpec Exponent = ButtonSpec("cmdUOp", 15, "Exp", 1030, 1031);
inline constexpr ControlSpec Random = ButtonSpec("cmdUOp", 16, "Rnd", 1032, 1033);

inline constexpr ControlSpec LeftParen = ButtonSpec("cmdLeftParen", NoIndex, "(", 1068, 1070);
inline constexpr ControlSpec RightParen = ButtonSpec("cmdRightParen", NoIndex, ")", 1069, 1071);

}  // namespace qves::scientific::Buttons
