// The keys of the Standard view, tested in this order.
#pragma once

#include "model/KeyMap.h"

namespace qves::standard {

using enum ShiftRule;
using enum KeyAction;

// codes from and to, shift rule, layout character, action, control, index, index from the code
inline constexpr KeyRow KeyMap[] = {
    {KeyF2, KeyF2, Shift, 0, RepeatSpeech},
    {KeyF1, KeyF9, Any, 0, LeaveIt},
    {KeyShift, KeyShift, Any, 0, LeaveIt},
    {KeySpace, KeySpace, Any, 0, LeaveIt},
    {KeyEnd, KeyDown, Any, 0, LeaveIt},
    {KeyControl, KeyControl, Any, 0, LeaveIt},
    {'C', 'C', ShiftRule::Control, 0, LeaveIt},
    {'A', 'A', ShiftRule::Control, 0, LeaveIt},
    {'V', 'V', ShiftRule::Control, 0, Focus, "txtDisplay"},
    {'L', 'L', ShiftRule::Control, 0, Click, "cmdMemory", 0},
    {'R', 'R', ShiftRule::Control, 0, Click, "cmdMemory", 1},
    {'M', 'M', ShiftRule::Control, 0, Click, "cmdMemory", 2},
    {'P', 'P', ShiftRule::Control, 0, Click, "cmdMemory", 3},
    {KeyEscape, KeyEscape, Any, 0, Click, "cmdMemory", 4},
    {'0', '9', None, 0, Click, "cmdDigit", -'0', true},
    {KeyPad0, KeyPad9, Any, 0, Click, "cmdDigit", -KeyPad0, true},
    {KeyPadDecimal, KeyPadDecimal, Any, 0, Click, "cmdDecimal"},
    {KeyPeriod, KeyPeriod, Any, U'.', Click, "cmdDecimal"},
    {KeyPadMultiply, KeyPadMultiply, Any, U'*', Click, "cmdBiOp", 0},
    {KeyPadDivide, KeyPadDivide, Any, U'/', Click, "cmdBiOp", 1},
    {KeyPadSubtract, KeyPadSubtract, Any, U'-', Click, "cmdBiOp", 2},
    {KeyPadAdd, KeyPadAdd, Any, U'+', Click, "cmdBiOp", 3},
    {0, 0, Any, U'=', Click, "cmdEqual"},
    // The top row's 2 and 5 whatever the layout, while the operators above follow it: wanted so.
    {'2', '2', Shift, 0, Click, "cmdUOp", 0},
    {'5', '5', Shift, 0, Click, "cmdUOp", 3},
    {'M', 'M', Any, 0, Click, "cmdUOp", 1},
    {'R', 'R', Any, 0, Click, "cmdUOp", 2},
    {KeyDelete, KeyDelete, Any, 0, Click, "cmdCE"},
    {KeyBackspace, KeyBackspace, Any, 0, Click, "cmdBackspace"},
};

}  // namespace qves::standard
