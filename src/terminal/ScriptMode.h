// Script mode: a command a line in, a JSON object a line out.
#pragma once

#include <iosfwd>

#include "terminal/Options.h"

namespace qves {

/// Runs all lines. Blank lines and those that begin with "#" give nothing. Returns the exit status: 1 when a
/// line was no command.
int RunScript(const Options& options, std::istream& in, std::ostream& out);

}  // namespace qves
