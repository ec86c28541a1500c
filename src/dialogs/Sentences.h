// Where the sentences and the lines of a text are.
#pragma once

#include <cstddef>
#include <string_view>
#include <vector>

namespace qves {

/// A stretch of a text, in bytes.
struct TextSpan {
  std::size_t Start = 0;
  std::size_t Length = 0;
};

/// The sentences of a text. A sentence ends after a full stop, a question mark or an exclamation mark that a
/// blank follows, and at the end of a line; blank stretches are none.
std::vector<TextSpan> FindSentences(std::string_view text);

/// The line around that byte, without its end.
TextSpan LineAround(std::string_view text, std::size_t at);

/// The byte at which the next or the one before of the characters (UTF-8) begins; the same at the ends.
std::size_t NextCharacter(std::string_view text, std::size_t at);
std::size_t PreviousCharacter(std::string_view text, std::size_t at);

}  // namespace qves
