// The command line of the terminal program.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "app/CommandLine.h"
#include "platform/Outside.h"
#include "speech/SpeechBackEnds.h"

namespace qves {

struct Options : CommonOptions {
  bool Script = false;
  std::string ScriptFile;     ///< "" or "-": standard input
  bool Voiced = false;        ///< tells what a voice is given, too
  bool DecimalComma = false;  ///< as if the desktop's language wrote numbers so
  std::optional<Date> Today;
  std::optional<unsigned long> Seed;
  std::optional<SpeechChoice> Speech;  ///< none: the transcript alone
};

/// The options; nothing when one is wrong, with the reason in `error`.
std::optional<Options> ParseOptions(const std::vector<std::string>& arguments, std::string& error);

/// What --help prints.
std::string HelpText();

}  // namespace qves
