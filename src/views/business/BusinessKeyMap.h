// The keys of the Business view, tested in this order.
#pragma once

#include <array>

#include "model/Join.h"
#include "views/SharedKeys.h"
#include "views/business/BusinessButtons.h"

namespace qves::business {

using enum ShiftRule;
using enum KeyAction;

// codes from and to, shift rule, layout character, action, control, code of index 0
inline constexpr auto KeyMap =
    Join(shared::FirstKeys, shared::DisplayKey,
         std::to_array<KeyRow>({
             {'B', 'B', ShiftRule::Control, 0, Focus, "lltINTBase"},
             {'T', 'T', ShiftRule::Control, 0, Focus, "lltPMTMode"},
             {'D', 'D', ShiftRule::Control, 0, Focus, "lltOddPeriod"},
         }),
         shared::MemoryKeys,
         std::to_array<KeyRow>({
             {'F', 'F', ShiftRule::Control, 0, Click, Buttons::ClearFinancial},
             {'N', 'N', ShiftRule::Control, 0, Click, Buttons::Times12},
             {'I', 'I', ShiftRule::Control, 0, Click, Buttons::By12},
             {'O', 'O', ShiftRule::Control, 0, Click, Buttons::Store},
             {'L', 'L', Any, 0, Click, Buttons::Recall},
             {'K', 'K', Any, 0, Click, Buttons::Solve},
             {'X', 'X', Any, 0, Click, Buttons::Exchange},
         }),
         shared::DigitKeys, shared::PointKeys, shared::OperatorKeys,
         std::to_array<KeyRow>({
             {'D', 'D', Any, 0, Click, Buttons::DateAfter},
             // The top row's digits whatever the layout, while the operators above follow it: wanted so.
             {'1', '1', Shift, 0, Click, Buttons::PercentOfTotal},
             {'3', '3', Shift, 0, Click, Buttons::PercentDifference},
             {'2', '2', Shift, 0, Click, Buttons::Sqrt},
             {'5', '5', Shift, 0, Click, Buttons::Percent},
             {'M', 'M', Any, 0, Click, Buttons::Sign},
             {'R', 'R', Any, 0, Click, Buttons::Reciprocal},
             {'S', 'S', Any, 0, Click, Buttons::Interest},
             {'V', 'V', Any, 0, Click, Buttons::Npv},
             {'U', 'U', Any, 0, Click, Buttons::Irr},
             {'B', 'B', Any, 0, Click, Buttons::DecliningBalance},
             // C is straight-line and A sum of the years, although their helps say it the other way round:
             // wanted so.
             {'C', 'C', None, 0, Click, Buttons::StraightLine},
             {'A', 'A', Any, 0, Click, Buttons::SumOfYears},
             {'Z', 'Z', Any, 0, Click, Buttons::Amortization},
             {'4', '4', Shift, 0, Click, Buttons::BondPrice},
             {'Y', 'Y', Any, 0, Click, Buttons::BondYield},
             {'W', 'W', Any, 0, Click, Buttons::Days},
         }),
         shared::CorrectionKeys,
         std::to_array<KeyRow>({
             {'N', 'N', Any, 0, Click, Buttons::N},
             {'I', 'I', Any, 0, Click, Buttons::I},
             {'P', 'P', Any, 0, Click, Buttons::PV},
             {'T', 'T', Any, 0, Click, Buttons::PMT},
             {'F', 'F', Any, 0, Click, Buttons::FV},
             {'O', 'O', Any, 0, Click, Buttons::CF0},
             {'H', 'H', Any, 0, Click, Buttons::CFj},
             {'Q', 'Q', Any, 0, Click, Buttons::Nj},
             {'J', 'J', Any, 0, Click, Buttons::J},
             {'G', 'G', Any, 0, Click, Buttons::BeginDate},
             {'E', 'E', Any, 0, Click, Buttons::EndDate},
         }));

}  // namespace qves::business
