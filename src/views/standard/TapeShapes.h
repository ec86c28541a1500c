// How the tape of the Standard view shows its operators.
#pragma once

#include <string_view>

#include "engine/Buttons.h"

namespace qves::standard {

/// The tape line of a unary operator: the operand between two texts. One that is not listed puts the result
/// alone on its line.
struct TapeShape {
  std::string_view Caption;
  std::string_view Lead;
  std::string_view Tail;
};

inline constexpr TapeShape TapeShapes[] = {
    {Buttons::Sqrt.Caption, "Sqr(", ") = "},
    {Buttons::Reciprocal.Caption, "1 / ", " = "},
};

}  // namespace qves::standard
