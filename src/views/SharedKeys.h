// The keys that several views have in the same place of their key maps.
#pragma once

#include <array>

#include "model/KeyMap.h"

namespace qves::shared {

using enum ShiftRule;
using enum KeyAction;

// codes from and to, shift rule, layout character, action, control, index, index from the code

/// What is said again, and what is left to the focused control.
inline constexpr auto FirstKeys = std::to_array<KeyRow>({
    {KeyF2, KeyF2, Shift, 0, RepeatSpeech},
    {KeyF1, KeyF9, Any, 0, LeaveIt},
    {KeyShift, KeyShift, Any, 0, LeaveIt},
    {KeySpace, KeySpace, Any, 0, LeaveIt},
    {KeyEnd, KeyDown, Any, 0, LeaveIt},
    {KeyControl, KeyControl, Any, 0, LeaveIt},
});

inline constexpr auto DisplayKey = std::to_array<KeyRow>({
    {'V', 'V', ShiftRule::Control, 0, Focus, "txtDisplay"},
});

inline constexpr auto MemoryKeys = std::to_array<KeyRow>({
    {'L', 'L', ShiftRule::Control, 0, Click, "cmdMemory", 0},
    {'R', 'R', ShiftRule::Control, 0, Click, "cmdMemory", 1},
    {'M', 'M', ShiftRule::Control, 0, Click, "cmdMemory", 2},
    {'P', 'P', ShiftRule::Control, 0, Click, "cmdMemory", 3},
    {KeyEscape, KeyEscape, Any, 0, Click, "cmdMemory", 4},
});

inline constexpr auto DigitKeys = std::to_array<KeyRow>({
    {'0', '9', None, 0, Click, "cmdDigit", -'0', true},
    {KeyPad0, KeyPad9, Any, 0, Click, "cmdDigit", -KeyPad0, true},
});

inline constexpr auto PointKeys = std::to_array<KeyRow>({
    {KeyPadDecimal, KeyPadDecimal, Any, 0, Click, "cmdDecimal"},
    {KeyPeriod, KeyPeriod, Any, U'.', Click, "cmdDecimal"},
});

inline constexpr auto OperatorKeys = std::to_array<KeyRow>({
    {KeyPadMultiply, KeyPadMultiply, Any, U'*', Click, "cmdBiOp", 0},
    {KeyPadDivide, KeyPadDivide, Any, U'/', Click, "cmdBiOp", 1},
    {KeyPadSubtract, KeyPadSubtract, Any, U'-', Click, "cmdBiOp", 2},
    {KeyPadAdd, KeyPadAdd, Any, U'+', Click, "cmdBiOp", 3},
    {0, 0, Any, U'=', Click, "cmdEqual"},
});

inline constexpr auto CorrectionKeys = std::to_array<KeyRow>({
    {KeyDelete, KeyDelete, Any, 0, Click, "cmdCE"},
    {KeyBackspace, KeyBackspace, Any, 0, Click, "cmdBackspace"},
});

}  // namespace qves::shared
