// The keys of the Standard view, tested in this order.
#pragma once

#include <array>

#include "model/Join.h"
#include "views/SharedKeys.h"

namespace qves::standard {

using enum ShiftRule;
using enum KeyAction;

// codes from and to, shift rule, layout character, action, control, code of index 0
inline constexpr auto KeyMap =
    Join(shared::FirstKeys,
         std::to_array<KeyRow>({
             {'C', 'C', ShiftRule::Control, 0, LeaveIt},
             {'A', 'A', ShiftRule::Control, 0, LeaveIt},
         }),
         shared::DisplayKey, shared::MemoryKeys, shared::DigitKeys, shared::PointKeys, shared::OperatorKeys,
         std::to_array<KeyRow>({
             // The top row's 2 and 5 whatever the layout, while the operators above follow it: wanted so.
             {'2', '2', Shift, 0, Click, Buttons::Sqrt},
             {'5', '5', Shift, 0, Click, Buttons::Percent},
             {'M', 'M', Any, 0, Click, Buttons::Sign},
             {'R', 'R', Any, 0, Click, Buttons::Reciprocal},
         }),
         shared::CorrectionKeys);

}  // namespace qves::standard
