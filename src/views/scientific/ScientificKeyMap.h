// The keys of the Scientific view, tested in this order.
#pragma once

#include <array>

#include "model/Join.h"
#include "views/SharedKeys.h"

namespace qves::scientific {

using enum ShiftRule;
using enum KeyAction;

// codes from and to, shift rule, layout character, action, control, index, index from the code, while enabled
inline constexpr auto KeyMap =
    Join(shared::FirstKeys, shared::DisplayKey,
         std::to_array<KeyRow>({
             {'B', 'B', ShiftRule::Control, 0, Focus, "lltNumBase"},
             {'T', 'T', ShiftRule::Control, 0, Focus, "lltTrigMode"},
             {'I', 'I', ShiftRule::Control, 0, Focus, "cbInv"},
             {'H', 'H', ShiftRule::Control, 0, Focus, "cbHyp"},
         }),
         shared::MemoryKeys,
         std::to_array<KeyRow>({
             {'P', 'P', Any, 0, Click, "cmdMemory", 5},
         }),
         shared::DigitKeys,
         std::to_array<KeyRow>({
             // Enabled in the hexadecimal base only. There B to F are digits also where they are functions
             // below, and whatever is held with them: wanted so.
             {'A', 'F', Any, 0, Click, "cmdDigit", 10 - 'A', true, true},
         }),
         shared::PointKeys,
         std::to_array<KeyRow>({
             {'Y', 'Y', Any, 0, Click, "cmdBiOp", 8},
             // The "&" key does nothing, although the help of the button names it: wanted so.
             {'O', 'O', ShiftRule::Control, 0, Click, "cmdBiOp", 4},
             // The keys of these places whatever the layout, while the four operators and the parentheses
             // follow it: wanted so.
             {KeyBackslash, KeyBackslash, Shift, 0, Click, "cmdBiOp", 5},
             {'6', '6', Shift, 0, Click, "cmdBiOp", 6},
             {'5', '5', Shift, 0, Click, "cmdBiOp", 7},
             {KeyComma, KeyComma, Shift, 0, Click, "cmdBiOp", 9},
         }),
         shared::OperatorKeys,
         std::to_array<KeyRow>({
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
             {'X', 'X', Any, 0, Click, "cmdUOp", 15},
             {'D', 'D', Any, 0, Click, "cmdUOp", 16},
         }),
         shared::CorrectionKeys);

}  // namespace qves::scientific
