#include "desktop/Options.h"

namespace qves {
namespace {

bool SetSpeech(Options& options, const std::string& value) {
  const auto choice = FindSpeechChoice(value);
  options.Speech = choice.value_or(SpeechChoice::Auto);
  return choice.has_value();
}

constexpr ValueOption<Options> ValueOptions[] = {
    {"--view", ViewWants, [](Options& options, const std::string& value) { return SetView(options, value); }},
    {"--home", HomeWants, [](Options& options, const std::string& value) { return SetHome(options, value); }},
    {"--speech", "auto, speech-dispatcher, espeak-ng or off", SetSpeech},
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

std::string_view HelpText() {
  return "qvescalc [OPTIONS]    the calculator in a window\n"
         "\n"
         "  --view standard|scientific|business|statistics   the view to open (default: the one used last)\n"
         "  --speech auto|speech-dispatcher|espeak-ng|off    what speaks (default: auto)\n"
         "  --home DIR                                       all settings and documents lie below DIR\n"
         "  --help, --version\n"
         "\n"
         "Qt's own options (-style, -platform and so on) are understood as well.\n";
}

}  // namespace qves
