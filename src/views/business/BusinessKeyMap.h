// The keys of the Business view, tested in this order.
#pragma once

#include <array>

#include "model/Join.h"
#include "views/SharedKeys.h"

namespace qves::business {

using enum ShiftRule;
using enum KeyAction;

// codes from and to, shift rule, layout character, action, control, index, index from the code
inline constexpr auto KeyMap =
    Join(shared::FirstKeys, shared::DisplayKey,
         std::to_array<KeyRow>({
             {'B', 'B', ShiftRule::Control, 0, Focus, "lltINTBase"},
             {'T', 'T', ShiftRule::Control, 0, Focus, "lltPMTMode"},
             {'D', 'D', ShiftRule::Control, 0, Focus, "lltOddPeriod"},
         }),
         shared::MemoryKeys,
         std::to_array<KeyRow>({
             {'F', 'F', ShiftRule::Control, 0, Click, "cmdMemory", 5},
             {'N', 'N', ShiftRule::Control, 0, Click, "cmdUOp", 5},
             {'I', 'I', ShiftRule::Control, 0, Click, "cmdUOp", 6},
             {'O', 'O', ShiftRule::Control, 0, Click, "cmdSTO"},
             {'L', 'L', Any, 0, Click, "cmdRecall"},
             {'K', 'K', Any, 0, Click, "cmdCal"},
             {'X', 'X', Any, 0, Click, "cmdXchange"},
         }),
         shared::DigitKeys, shared::PointKeys, shared::OperatorKeys,
         std::to_array<KeyRow>({
             {'D', 'D', Any, 0, Click, "cmdBiOp", 4},
             // The top row's digits whatever the layout, while the operators above follow it: wanted so.
             {'1', '1', Shift, 0, Click, "cmdBiOp", 5},
             {'3', '3', Shift, 0, Click, "cmdBiOp", 6},
             {'2', '2', Shift, 0, Click, "cmdUOp", 0},
             {'5', '5', Shift, 0, Click, "cmdUOp", 3},
             {'M', 'M', Any, 0, Click, "cmdUOp", 1},
             {'R', 'R', Any, 0, Click, "cmdUOp", 2},
             {'S', 'S', Any, 0, Click, "cmdUOp", 4},
             {'V', 'V', Any, 0, Click, "cmdUOp", 7},
             {'U', 'U', Any, 0, Click, "cmdUOp", 8},
             {'B', 'B', Any, 0, Click, "cmdUOp", 9},
             // C is straight-line and A sum of the years, although their helps say it the other way round:
             // wanted so.
             {'C', 'C', None, 0, Click, "cmdUOp", 10},
             {'A', 'A', Any, 0, Click, "cmdUOp", 11},
             {'Z', 'Z', Any, 0, Click, "cmdUOp", 12},
             {'4', '4', Shift, 0, Click, "cmdUOp", 13},
             {'Y', 'Y', Any, 0, Click, "cmdUOp", 14},
             {'W', 'W', Any, 0, Click, "cmdUOp", 15},
         }),
         shared::CorrectionKeys,
         std::to_array<KeyRow>({
             {'N', 'N', Any, 0, Click, "cmdFinancial", 0},
             {'I', 'I', Any, 0, Click, "cmdFinancial", 1},
             {'P', 'P', Any, 0, Click, "cmdFinancial", 2},
             {'T', 'T', Any, 0, Click, "cmdFinancial", 3},
             {'F', 'F', Any, 0, Click, "cmdFinancial", 4},
             {'O', 'O', Any, 0, Click, "cmdFinancial", 5},
             {'H', 'H', Any, 0, Click, "cmdFinancial", 6},
             {'Q', 'Q', Any, 0, Click, "cmdFinancial", 7},
             {'J', 'J', Any, 0, Click, "cmdFinancial", 8},
             {'G', 'G', Any, 0, Click, "cmdFinancial", 9},
             {'E', 'E', Any, 0, Click, "cmdFinancial", 10},
         }));

}  // namespace qves::business
