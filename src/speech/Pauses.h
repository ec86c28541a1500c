// Pauses where a voice would run together what stands apart.
#pragma once

#include <span>
#include <string_view>

#include "text/MarkedText.h"

namespace qves {

/// The text with a full stop at the end of each line that has no punctuation there, as a voice reads over a
/// line end; with a comma after a letter A in the middle of a sentence, which a voice takes for the article;
/// and with one after three equal letters, as espeak-ng drops the fourth. The marks, in order, move with
/// their places.
MarkedText WithPauses(std::string_view text, std::span<const BookMark> marks);

}  // namespace qves
