// Where the sentences of a text are.
#pragma once

#include <string_view>
#include <vector>

#include "text/TextPlaces.h"

namespace qves {

/// The sentences of a text. A sentence ends after a full stop, a question mark or an exclamation mark that a
/// blank follows, and at the end of a line; blank stretches are none.
std::vector<TextSpan> FindSentences(std::string_view text);

}  // namespace qves
