// The command line of the desktop program.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "app/CommandLine.h"
#include "speech/SpeechBackEnds.h"

namespace qves {

struct Options : CommonOptions {
  SpeechChoice Speech = SpeechChoice::Auto;
  std::vector<std::string> ToolkitArguments;  ///< what is left for the toolkit (-style, -display, ...)
};

/// The options, or nothing with the reason in `error`.
std::optional<Options> ParseOptions(const std::vector<std::string>& arguments, std::string& error);

std::string HelpText();

}  // namespace qves
