#include "desktop/Options.h"

namespace qves {
namespace {

std::string SetSpeech(Options& options, const std::string& value) {
  const auto choice = FindSpeechChoice(value);
  options.Speech = choice.value_or(SpeechChoice::Auto);
  return choice ? "" : "auto, speech-dispatcher, espeak-ng or off";
}

constexpr ValueOption<Options> ValueOptions[] = {
    {"--view", [](Options& options, const std::string& value) { return SetView(options, value); }},
    {"--home", [](Options& options, const std::string& value) { return SetHome(options, value); }},
    {"--speech", SetSpeech},
};

}  // namespace

std::optional<Options> ParseOptions(const std::vector<std::string>& arguments, std::string& error) {
  Options options;
  for (std::size_t at = 0; at < arguments.size(); ++at) {
    if (!arguments[at].starts_with("--"))
      options.ToolkitArguments.push_back(arguments[at]);
    else if (!TakeOption<Options>(options, ValueOptions, arguments, at, error))
      return std::nullopt;
  }
  return options;
}

std::string HelpText() {
  return "qvescalc [OPTIONS]    the calculator in a window\n"
         "\n"
         "  --view " +
         ViewWords("|", "|") +
         "   the view to open (default: the one used last)\n"
         "  --speech auto|speech-dispatcher|espeak-ng|off    what speaks (default: auto)\n"
         "  --home DIR                                       all settings and documents lie below DIR\n"
         "  --help, --version\n"
         "\n"
         "Qt's own options (-style, -platform and so on) are understood as well.\n";
}

}  // namespace qves
