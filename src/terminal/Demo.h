// The first minute of somebody who starts the program without a word.
#pragma once

#include <iosfwd>

#include "terminal/Options.h"

namespace qves {

/// Plays 7 + 5 Enter and prints what was shown and spoken, and how to go on.
void PlayDemo(const Options& options, std::ostream& out);

}  // namespace qves
