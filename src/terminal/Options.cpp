#include "terminal/Options.h"

#include <chrono>

#include "text/Integers.h"

namespace qves {
namespace {

std::optional<Date> ParseDate(std::string_view text) {
  if (text.size() != 10 || text[4] != '-' || text[7] != '-') return std::nullopt;
  const auto year = ParseInteger(text.substr(0, 4));
  const auto month = ParseInteger(text.substr(5, 2));
  const auto day = ParseInteger(text.substr(8, 2));
  if (!year || !month || !day) return std::nullopt;
  const std::chrono::year_month_day date{std::chrono::year(*year), std::chrono::month(unsigned(*month)),
                                         std::chrono::day(unsigned(*day))};
  return date.ok() ? std::optional(Date{*year, *month, *day}) : std::nullopt;
}

std::string SetToday(Options& options, const std::string& value) {
  options.Today = ParseDate(value);
  return options.Today ? "" : "a date such as 2026-01-31";
}

std::string SetSeed(Options& options, const std::string& value) {
  options.Seed = ParseInteger<unsigned long>(value);
  return options.Seed ? "" : "a whole number";
}

std::string SetSpeech(Options& options, const std::string& value) {
  options.Speech = FindSpeechChoice(value);
  return options.Speech || value == "transcript" ? ""
                                                 : "transcript, auto, speech-dispatcher, espeak-ng or off";
}

constexpr ValueOption<Options> ValueOptions[] = {
    {"--view", [](Options& options, const std::string& value) { return SetView(options, value); }},
    {"--home", [](Options& options, const std::string& value) { return SetHome(options, value); }},
    {"--today", SetToday},
    {"--seed", SetSeed},
    {"--speech", SetSpeech},
};

}  // namespace

std::optional<Options> ParseOptions(const std::vector<std::string>& arguments, std::string& error) {
  Options options;
  for (std::size_t at = 0; at < arguments.size(); ++at) {
    if (arguments[at] == "--script") {
      options.Script = true;
    } else if (arguments[at] == "--voiced") {
      options.Voiced = true;
    } else if (arguments[at] == "--decimal-comma") {
      options.DecimalComma = true;
    } else if (options.Script && options.ScriptFile.empty() && !arguments[at].starts_with("--")) {
      options.ScriptFile = arguments[at];
    } else if (!TakeOption<Options>(options, ValueOptions, arguments, at, error)) {
      return std::nullopt;
    }
  }
  return options;
}

std::string HelpText() {
  return "qvescalc-cli [OPTIONS]             plays one short calculation and tells how to go on\n"
         "qvescalc-cli --script [FILE]       runs the commands of FILE, or of standard input\n"
         "\n"
         "  --view " +
         ViewWords("|", "|") +
         "   the view to open (default: the one used last)\n"
         "  --today YYYY-MM-DD                               the date that the calculator takes as today\n"
         "  --seed N                                         the start of the random numbers\n"
         "  --home DIR                                       all settings and documents lie below DIR\n"
         "  --speech transcript|auto|speech-dispatcher|espeak-ng|off\n"
         "                                                   what speaks (default: a transcript only)\n"
         "  --voiced                                         tells beside what is spoken what a voice is "
         "given\n"
         "  --decimal-comma                                  the comma key types the point\n"
         "  --help, --version\n";
}

}  // namespace qves
