// The keys of the Statistics view, tested in this order.
#pragma once

#include <array>

#include "model/Join.h"
#include "views/SharedKeys.h"
#include "views/statistics/StatisticsButtons.h"

namespace qves::statistics {

using enum ShiftRule;
using enum KeyAction;

// codes from and to, shift rule, layout character, action, control, code of index 0
inline constexpr auto KeyMap = Join(shared::FirstKeys, shared::DisplayKey,
                                    std::to_array<KeyRow>({
                                        {'D', 'D', ShiftRule::Control, 0, Focus, "lvwData"},
                                        {'T', 'T', ShiftRule::Control, 0, Focus, "lvwData2"},
                                        {'Z', 'Z', ShiftRule::Control, 0, Focus, "cbIgnoreZero"},
                                        {'U', 'U', ShiftRule::Control, 0, Focus, "cbUseList2"},
                                    }),
                                    shared::DigitKeys,
                                    std::to_array<KeyRow>({
                                        {'A', 'A', Any, 0, Click, Buttons::AddPoint},
                                        {'R', 'R', Any, 0, Click, Buttons::RemovePoint},
                                        {'L', 'L', Any, 0, Click, Buttons::ClearList},
                                        {'U', 'U', Any, 0, Click, Buttons::Run},
                                        {'D', 'D', Any, 0, Click, Buttons::DegreesOfFreedom},
                                        {'P', 'P', Any, 0, Click, Buttons::Alpha},
                                    }),
                                    shared::PointKeys,
                                    std::to_array<KeyRow>({
                                        {'M', 'M', Any, 0, Click, Buttons::Sign},
                                        {KeyEscape, KeyEscape, Any, 0, Click, Buttons::ClearEntry},
                                    }),
                                    shared::CorrectionKeys);

}  // namespace qves::statistics
