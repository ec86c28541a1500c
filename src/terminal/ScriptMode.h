// Script mode: a command a line in, a JSON object a line out.
#pragma once

#include <iosfwd>

#include "terminal/Options.h"

namespace qves {

/// Runs all lines of the open file. Blank lines and those that begin with "#" give nothing. Returns the exit
/// status: 0, 1 when a line was no command, 2 when
/// the output cannot be written, 128 and the signal's number when a signal ended the run.
int RunScript(const Options& options, int descriptor, std::ostream& out);

}  // namespace qves
