// The keys of the Statistics view, tested in this order.
#pragma once

#include <array>

#include "model/Join.h"
#include "views/SharedKeys.h"

namespace qves::statistics {

using enum ShiftRule;
using enum KeyAction;

// codes from and to, shift rule, layout character, action, control, index, index from the code
inline constexpr auto KeyMap = Join(shared::FirstKeys, shared::DisplayKey,
                                    std::to_array<KeyRow>({
                                        {'D', 'D', ShiftRule::Control, 0, Focus, "lvwData"},
                                        {'T', 'T', ShiftRule::Control, 0, Focus, "lvwData2"},
                                        {'Z', 'Z', ShiftRule::Control, 0, Focus, "cbIgnoreZero"},
                                        {'U', 'U', ShiftRule::Control, 0, Focus, "cbUseList2"},
                                    }),
                                    shared::DigitKeys,
                                    std::to_array<KeyRow>({
                                        {'A', 'A', Any, 0, Click, "cmdAdd"},
                                        {'R', 'R', Any, 0, Click, "cmdRemove"},
                                        {'L', 'L', Any, 0, Click, "cmdClear"},
                                        {'U', 'U', Any, 0, Click, "cmdRun"},
                                        {'D', 'D', Any, 0, Click, "cmdStat", 0},
                                        {'P', 'P', Any, 0, Click, "cmdStat", 1},
                                    }),
                                    shared::PointKeys,
                                    std::to_array<KeyRow>({
                                        {'M', 'M', Any, 0, Click, "cmdSign"},
                                        {KeyEscape, KeyEscape, Any, 0, Click, "cmdCE"},
                                    }),
                                    shared::CorrectionKeys);

}  // namespace qves::statistics
