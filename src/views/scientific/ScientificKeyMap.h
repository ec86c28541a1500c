// The keys of the Scientific view, tested in this order.
#pragma once

#include <array>

#include "model/Join.h"
#include "views/SharedKeys.h"
#include "views/scientific/ScientificButtons.h"

namespace qves::scientific {

using enum ShiftRule;
using enum KeyAction;

// codes from and to, shift rule, layout character, action, control, code of index 0, while enabled
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
             {'P', 'P', Any, 0, Click, Buttons::Pi},
         }),
         shared::DigitKeys,
         std::to_array<KeyRow>({
             // Enabled in the hexadecimal base only. There B to F are digits also where they are functions
             // below, and whatever is held with them: wanted so.
             {'A', 'F', Any, 0, Click, Buttons::Digits, 'A' - 10, true},
         }),
         shared::PointKeys,
         std::to_array<KeyRow>({
             {'Y', 'Y', Any, 0, Click, Buttons::Power},
             // The "&" key does nothing, although the help of the button names it: wanted so.
             {'O', 'O', ShiftRule::Control, 0, Click, Buttons::And},
             // The keys of these places whatever the layout, while the four operators and the parentheses
             // follow it: wanted so.
             {KeyBackslash, KeyBackslash, Shift, 0, Click, Buttons::Or},
             {'6', '6', Shift, 0, Click, Buttons::Xor},
             {'5', '5', Shift, 0, Click, Buttons::Mod},
             {KeyComma, KeyComma, Shift, 0, Click, Buttons::Lsh},
         }),
         shared::OperatorKeys,
         std::to_array<KeyRow>({
             {0, 0, Any, U'(', Click, Buttons::LeftParen},
             {0, 0, Any, U')', Click, Buttons::RightParen},
             {'2', '2', Shift, 0, Click, Buttons::Sqrt},
             {KeySemicolon, KeySemicolon, Any, 0, Click, Buttons::Int},
             {KeyGrave, KeyGrave, Shift, 0, Click, Buttons::Not},
             {'1', '1', Shift, 0, Click, Buttons::Factorial},
             {'3', '3', Shift, 0, Click, Buttons::Cube},
             {'M', 'M', Any, 0, Click, Buttons::Sign},
             {'R', 'R', Any, 0, Click, Buttons::Reciprocal},
             {'S', 'S', Any, 0, Click, Buttons::Sin},
             {'O', 'O', Any, 0, Click, Buttons::Cos},
             {'T', 'T', NotControl, 0, Click, Buttons::Tan},
             {'Q', 'Q', Any, 0, Click, Buttons::Square},
             {'N', 'N', Any, 0, Click, Buttons::Ln},
             {'L', 'L', Any, 0, Click, Buttons::Log},
             {'V', 'V', Any, 0, Click, Buttons::Notation},
             {'E', 'E', Any, 0, Click, Buttons::ExpOfX},
             {'X', 'X', Any, 0, Click, Buttons::Exponent},
             {'D', 'D', Any, 0, Click, Buttons::Random},
         }),
         shared::CorrectionKeys);

}  // namespace qves::scientific
