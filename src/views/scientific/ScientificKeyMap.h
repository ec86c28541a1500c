// The keys of the Scientific view, tested in this order.
#pragma once

#include "model/KeyMap.h"

namespace qves::scientific {

using enum ShiftRule;
using enum KeyAction;

// codes from and to, shift rule, layout character, action, control, index, index from the code, while enabled
inline constexpr KeyRow KeyMap[] = {
    {KeyF2, KeyF2, Shift, 0, RepeatSpeech},
    {KeyF1, KeyF9, Any, 0, LeaveIt},
    {KeyShift, KeyShift, Shift, 0, LeaveIt},
    {KeySpace, KeySpace, Any, 0, LeaveIt},
    {KeyEnd, KeyDown, Any, 0, LeaveIt},
    {KeyControl, KeyControl, ShiftRule::Control, 0, LeaveIt},
    {'V', 'V', ShiftRule::Control, 0, Focus, "txtDisplay"},
    {'B', 'B', ShiftRule::Control, 0, Focus, "lltNumBase"},
    {'T', 'T', ShiftRule::Control, 0, Focus, "lltTrigMode"},
    {'I', 'I', ShiftRule::Control, 0, Focus, "cbInv"},
    {'H', 'H', ShiftRule::Control, 0, Focus, "cbHyp"},
    {'L', 'L', ShiftRule::Control, 0, Click, "cmdMemory", 0},
    {'R', 'R', ShiftRule::Control, 0, Click, "cmdMemory", 1},
    {'M', 'M', ShiftRule::Control, 0, Click, "cmdMemory", 2},
    {'P', 'P', ShiftRule::Control, 0, Click, "cmdMemory", 3},
    {KeyEscape, KeyEscape, Any, 0, Click, "cmdMemory", 4},
    {'P', 'P', Any, 0, Click, "cmdMemory", 5},
    {'0', '9', None, 0, Click, "cmdDigit", -'0', true},
    {KeyPad0, KeyPad9, Any, 0, Click, "cmdDigit", -KeyPad0, true},
    // Enabled in the hexadecimal base only. There B to F are digits also where they are functions below, and
    // whatever is held with them: wanted so.
    {'A', 'F', Any, 0, Click, "cmdDigit", 10 - 'A', true, true},
    {KeyPadDecimal, KeyPadDecimal, Any, 0, Click, "cmdDecimal"},
    {KeyPeriod, KeyPeriod, Any, U'.', Click, "cmdDecimal"},
    {'Y', 'Y', Any, 0, Click, "cmdBiOp", 8},
    // The "&" key does nothing, although the help of the button names it: wanted so.
    {'O', 'O', ShiftRule::Control, 0, Click, "cmdBiOp", 4},
    // The keys of these places whatever the layout, while the four operators and the parentheses follow it:
    // wanted so.
    {KeyBackslash, KeyBackslash, Shift, 0, Click, "cmdBiOp", 5},
    {'6', '6', Shift, 0, Click, "cmdBiOp", 6},
    {'5', '5', Shift, 0, Click, "cmdBiOp", 7},
    {KeyComma, KeyComma, Shift, 0, Click, "cmdBiOp", 9},
    {KeyPadMultiply, KeyPadMultiply, Any, U'*', Click, "cmdBiOp", 0},
    {KeyPadDivide, KeyPadDivide, Any, U'/', Click, "cmdBiOp", 1},
    {KeyPadSubtract, KeyPadSubtract, Any, U'-', Click, "cmdBiOp", 2},
    {KeyPadAdd, KeyPadAdd, Any, U'+', Click, "cmdBiOp", 3},
    {0, 0, Any, U'=', Click, "cmdEqual"},
    {0, 0, Any, U'(', Click, "cmdLeftParen"},
    {0, 0, Any, U')', Click, "cmdRightParen"},
    {'2', '2', Shift, 0, Click, "cmdUOp", 0},
    {KeySemicolon, KeySemicolon, Any, 0, Click, "cmdUOp", 3},
    {KeyGrave, KeyGrave, Shift, 0, Click, "cmdUOp", 7},
    {'1', '1', Shift, 0, Click, "cmdUOp", 8},
    {'3', '3', Shift, 0, Click, "cmdUOp", 10},
    {'M', 'M', Any, 0, Click, "cmdUOp", 1},
    {'R', 'R', Any, 0, Click, "cmdUOp", 2},
    {'S', 'S', Any, 0, Click, "cmdUOp", 4},
    {'O', 'O', Any, 0, Click, "cmdUOp", 5},
    {'T', 'T', NotControl, 0, Click, "cmdUOp", 6},
    {'Q', 'Q', Any, 0, Click, "cmdUOp", 9},
    {'N', 'N', Any, 0, Click, "cmdUOp", 11},
    {'L', 'L', Any, 0, Click, "cmdUOp", 12},
    {'V', 'V', Any, 0, Click, "cmdUOp", 13},
    {'E', 'E', Any, 0, Click, "cmdUOp", 14},
    {'X', 'X', NotAlt, 0, Click, "cmdUOp", 15},
    {'D', 'D', Any, 0, Click, "cmdUOp", 16},
    {KeyDelete, KeyDelete, Any, 0, Click, "cmdCE"},
    {KeyBackspace, KeyBackspace, Any, 0, Click, "cmdBackspace"},
};

}  // namespace qves::scientific
