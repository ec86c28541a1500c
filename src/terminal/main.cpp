// qvescalc-cli: script mode and the short demonstration.
#include <filesystem>
#include <fstream>
#include <iostream>
#include <string>
#include <vector>

#include "terminal/Demo.h"
#include "terminal/Options.h"
#include "terminal/ScriptMode.h"

int main(int argc, char** argv) {
  std::ios::sync_with_stdio(false);
  std::string error;
  const auto options = qves::ParseOptions({argv + 1, argv + argc}, error);
  if (!options) {
    std::cerr << "qvescalc-cli: " << error << "; try --help\n";
    return 2;
  }
  if (options->Help) {
    std::cout << qves::HelpText();
  } else if (options->Version) {
    std::cout << "qvescalc-cli " QVES_VERSION "\n";
  } else if (!options->Script) {
    qves::PlayDemo(*options, std::cout);
  } else if (options->ScriptFile.empty() || options->ScriptFile == "-") {
    return qves::RunScript(*options, std::cin, std::cout);
  } else {
    std::ifstream file(options->ScriptFile, std::ios::binary);
    if (!file || std::filesystem::is_directory(options->ScriptFile)) {
      std::cerr << "qvescalc-cli: " << options->ScriptFile << ": cannot be read\n";
      return 2;
    }
    return qves::RunScript(*options, file, std::cout);
  }
  return 0;
}
