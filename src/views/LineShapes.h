// How the lines of calculations show the operators with one operand that several views have.
#pragma once

#include <array>

#include "engine/Buttons.h"
#include "engine/LineShape.h"

namespace qves::shared {

inline constexpr auto LineShapes = std::to_array<LineShape>({
    {Buttons::Sqrt.Caption, "Sqr(", ") = "},
    {Buttons::Reciprocal.Caption, "1 / ", " = "},
});

}  // namespace qves::shared
