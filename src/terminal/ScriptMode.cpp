#include "terminal/ScriptMode.h"

#include <iostream>
#include <string>

#include "posix/LineReader.h"
#include "terminal/ScriptSession.h"
#include "text/Text.h"

namespace qves {

int RunScript(const Options& options, int descriptor, std::ostream& out) {
  LineReader lines(descriptor);
  ScriptSession session(options);
  int number = 0;
  for (std::string line; out && lines.Next(line);) {
    if (++number == 1) line = WithoutByteOrderMark(line);
    if (line.ends_with('\r')) line.pop_back();
    if (line.find_first_not_of(" \t") == std::string::npos || line.starts_with('#')) continue;
    out << session.Run(number, line) << '\n' << std::flush;
  }
  if (!out) {
    std::cerr << "qvescalc-cli: the output cannot be written; the run ends at line " << number << "\n";
    return 2;
  }
  if (lines.EndingSignal() != 0) return 128 + lines.EndingSignal();
  return session.HadErrors() ? 1 : 0;
}

}  // namespace qves
