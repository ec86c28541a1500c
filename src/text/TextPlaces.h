// Places in a text: its lines and its characters.
#pragma once

#include <cstddef>
#include <optional>
#include <string_view>

namespace qves {

/// A stretch of a text, in bytes.
struct TextSpan {
  std::size_t Start = 0;
  std::size_t Length = 0;
};

/// The line around that byte, without its end (LF or CR LF).
TextSpan LineAround(std::string_view text, std::size_t at);
/// The line after that one or before it; none at the ends.
std::optional<TextSpan> LineAfter(std::string_view text, TextSpan line);
std::optional<TextSpan> LineBefore(std::string_view text, TextSpan line);

/// The byte at which the next or the one before of the characters (UTF-8; a line end is one) begins; the same
/// at the ends.
std::size_t NextCharacter(std::string_view text, std::size_t at);
std::size_t PreviousCharacter(std::string_view text, std::size_t at);

}  // namespace qves
