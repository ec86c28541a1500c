// qvescalc-cli: script mode and the short demonstration.
#include <fcntl.h>
#include <signal.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <cstring>
#include <iostream>
#include <string>

#include "terminal/Demo.h"
#include "terminal/Options.h"
#include "terminal/ScriptMode.h"

namespace {

constexpr int BadUsage = 2;

/// The script's descriptor; -1 when it cannot be read, with errno set.
int OpenScript(const std::string& file) {
  if (file.empty() || file == "-") return STDIN_FILENO;
  struct stat status {};
  if (::stat(file.c_str(), &status) == 0 && S_ISDIR(status.st_mode)) {
    errno = EISDIR;
    return -1;
  }
  return ::open(file.c_str(), O_RDONLY | O_CLOEXEC);
}

int Script(const qves::Options& options) {
  const int descriptor = OpenScript(options.ScriptFile);
  if (descriptor >= 0) return qves::RunScript(options, descriptor, std::cout);
  std::cerr << "qvescalc-cli: " << options.ScriptFile << ": " << std::strerror(errno) << "\n";
  return BadUsage;
}

}  // namespace

int main(int argc, char** argv) {
  std::ios::sync_with_stdio(false);
  ::signal(SIGPIPE, SIG_IGN);  // a reader that is gone ends the run in order
  std::string error;
  const auto options = qves::ParseOptions({argv + 1, argv + argc}, error);
  if (!options) {
    std::cerr << "qvescalc-cli: " << error << "; try --help\n";
    return BadUsage;
  }
  if (options->Help)
    std::cout << qves::HelpText();
  else if (options->Version)
    std::cout << "qvescalc-cli " QVES_VERSION "\n";
  else if (options->Script)
    return Script(*options);
  else
    qves::PlayDemo(*options, std::cout);
  return std::cout.flush() ? 0 : BadUsage;
}
