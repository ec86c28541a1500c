#include "terminal/ScriptMode.h"

#include <istream>
#include <ostream>
#include <string>

#include "terminal/ScriptSession.h"

namespace qves {

int RunScript(const Options& options, std::istream& in, std::ostream& out) {
  ScriptSession session(options);
  int number = 0;
  for (std::string line; std::getline(in, line);) {
    ++number;
    if (line.ends_with('\r')) line.pop_back();
    if (line.find_first_not_of(" \t") == std::string::npos || line.starts_with('#')) continue;
    const Json report = session.Run(number, line);
    out << report.dump(-1, ' ', false, Json::error_handler_t::replace) << '\n' << std::flush;
  }
  return session.HadErrors() ? 1 : 0;
}

}  // namespace qves
