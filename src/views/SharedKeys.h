// The keys that several views have in the same place of their key maps.
#pragma once

#include <array>

#include "engine/Buttons.h"
#include "model/KeyMap.h"

namespace qves::shared {

using enum ShiftRule;
using enum KeyAction;

// codes from and to, shift rule, layout character, action, control, code of index 0

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
    {'L', 'L', ShiftRule::Control, 0, Click, Buttons::MemoryClear},
    {'R', 'R', ShiftRule::Control, 0, Click, Buttons::MemoryRecall},
    {'M', 'M', ShiftRule::Control, 0, Click, Buttons::MemoryStore},
    {'P', 'P', ShiftRule::Control, 0, Click, Buttons::MemoryAdd},
    {KeyEscape, KeyEscape, Any, 0, Click, Buttons::ClearAll},
});

inline constexpr auto DigitKeys = std::to_array<KeyRow>({
    {'0', '9', None, 0, Click, Buttons::Digits, '0'},
    {KeyPad0, KeyPad9, Any, 0, Click, Buttons::Digits, KeyPad0},
});

inline constexpr auto PointKeys = std::to_array<KeyRow>({
    {KeyPadDecimal, KeyPadDecimal, Any, 0, Click, Buttons::Point},
    {KeyPeriod, KeyPeriod, Any, U'.', Click, Buttons::Point},
});

inline constexpr auto OperatorKeys = std::to_array<KeyRow>({
    {KeyPadMultiply, KeyPadMultiply, Any, U'*', Click, Buttons::Multiply},
    {KeyPadDivide, KeyPadDivide, Any, U'/', Click, Buttons::Divide},
    {KeyPadSubtract, KeyPadSubtract, Any, U'-', Click, Buttons::Subtract},
    {KeyPadAdd, KeyPadAdd, Any, U'+', Click, Buttons::Add},
    {0, 0, Any, U'=', Click, Buttons::Equals},
});

inline constexpr auto CorrectionKeys = std::to_array<KeyRow>({
    {KeyDelete, KeyDelete, Any, 0, Click, Buttons::ClearEntry},
    {KeyBackspace, KeyBackspace, Any, 0, Click, Buttons::Backspace},
});

}  // namespace qves::shared
