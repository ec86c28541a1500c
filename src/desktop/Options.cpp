#include "desktop/Options.h"

#include <algorithm>
#include <filesystem>
#include <span>
#include <string_view>

#include "services/AppSettings.h"

namespace qves {
namespace {

struct Named {
  std::string_view Name;
  int Value;
};

constexpr Named Views[] = {{"standard", StandardView},
                           {"scientific", ScientificView},
                           {"business", BusinessView},
                           {"statistics", StatisticsView}};

constexpr Named SpeechChoices[] = {{"auto", static_cast<int>(SpeechChoice::Auto)},
                                   {"speech-dispatcher", static_cast<int>(SpeechChoice::SpeechDispatcher)},
                                   {"espeak-ng", static_cast<int>(SpeechChoice::EspeakNg)},
                                   {"off", static_cast<int>(SpeechChoice::Off)}};

std::optional<int> FindNamed(std::span<const Named> table, std::string_view name) {
  const auto found = std::ranges::find(table, name, &Named::Name);
  return found == table.end() ? std::nullopt : std::optional(found->Value);
}

/// An option that takes a value; Set returns false when the value is wrong.
struct ValueOption {
  std::string_view Name;
  std::string_view Wants;
  bool (*Set)(Options&, const std::string& value);
};

constexpr ValueOption ValueOptions[] = {
    {"--view", "standard, scientific, business or statistics",
     [](Options& options, const std::string& value) {
       options.View = FindNamed(Views, value);
       return options.View.has_value();
     }},
    {"--speech", "auto, speech-dispatcher, espeak-ng or off",
     [](Options& options, const std::string& value) {
       const auto choice = FindNamed(SpeechChoices, value);
       options.Speech = static_cast<SpeechChoice>(choice.value_or(0));
       return choice.has_value();
     }},
    {"--home", "a folder",
     [](Options& options, const std::string& value) {
       options.Home = value;
       std::error_code ignored;
       std::filesystem::create_directories(value, ignored);
       return std::filesystem::is_directory(value, ignored);
     }},
};

constexpr std::pair<std::string_view, bool Options::*> PlainOptions[] = {{"--help", &Options::Help},
                                                                         {"--version", &Options::Version}};

/// Takes the option at `at`, which begins with "--", and its value; false with the reason in `error`.
bool TakeOption(Options& options, std::span<const std::string> arguments, std::size_t& at,
                std::string& error) {
  const std::string& argument = arguments[at];
  for (const auto& [name, member] : PlainOptions)
    if (name == argument) return options.*member = true;
  for (const ValueOption& option : ValueOptions) {
    if (option.Name != argument) continue;
    if (at + 1 < arguments.size() && option.Set(options, arguments[++at])) return true;
    error = argument + " wants " + std::string(option.Wants);
    return false;
  }
  error = "unknown option " + argument;
  return false;
}

}  // namespace

std::optional<Options> ParseOptions(const std::vector<std::string>& arguments, std::string& error) {
  Options options;
  for (std::size_t at = 0; at < arguments.size(); ++at) {
    if (!arguments[at].starts_with("--"))
      options.ToolkitArguments.push_back(arguments[at]);
    else if (!TakeOption(options, arguments, at, error))
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
