// How the line of a calculation, on a tape or in the history, shows an operator of one operand.
#pragma once

#include <string_view>

namespace qves {

/// The operand between two texts.
struct LineShape {
  std::string_view Caption;
  std::string_view Lead;
  std::string_view Tail;
};

}  // namespace qves
