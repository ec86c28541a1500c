// The keys with which a text is read by the line and by the character.
#pragma once

#include <optional>
#include <string_view>

#include "model/KeyEvent.h"

namespace qves {

/// Where a key leads, and what is to be said there.
struct CaretMove {
  std::size_t Caret = 0;
  std::string_view Said;     ///< a line without its end; or a character, of a line end "\r"
  bool IsCharacter = false;  ///< a line without text is said as its end
};

/// Up, Down, Page Up and Page Down lead to a line that has text, and stay where there is no further one; Left
/// and Right to a character, Home and End to those at the ends of the line, with Ctrl to the first and the
/// last line. Nothing for any other key.
std::optional<CaretMove> MoveByKey(std::string_view text, std::size_t caret, const KeyEvent& event);

}  // namespace qves
