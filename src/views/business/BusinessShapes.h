// How the lines of the Business view's calculations show its operators with one operand.
#pragma once

#include "model/Join.h"
#include "views/LineShapes.h"
#include "views/business/BusinessButtons.h"

namespace qves::business {

inline constexpr auto LineShapes = Join(shared::LineShapes, std::to_array<LineShape>({
                                                                {Buttons::Times12.Caption, "", " * 12 = "},
                                                                {Buttons::By12.Caption, "", " / 12 = "},
                                                            }));

}  // namespace qves::business
