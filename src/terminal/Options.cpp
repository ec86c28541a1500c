#include "terminal/Options.h"

#include <charconv>
#include <chrono>

namespace qves {
namespace {

std::optional<Date> ParseDate(std::string_view text) {
  Date date;
  if (text.size() != 10 || text[4] != '-' || text[7] != '-') return std::nullopt;
  const auto read = [&](std::size_t from, std::size_t length, int& into) {
    const char* begin = text.data() + from;
    const auto [end, error] = std::from_chars(begin, begin + length, into);
    return error == std::errc() && end == begin + length;
  };
  if (!read(0, 4, date.Year) || !read(5, 2, date.Month) || !read(8, 2, date.Day)) return std::nullopt;
  const std::chrono::year_month_day day{std::chrono::year(date.Year),
                                        std::chrono::month(unsigned(date.Month)),
                                        std::chrono::day(unsigned(date.Day))};
  if (!day.ok()) return std::nullopt;
  return date;
}

std::string SetToday(Options& options, const std::string& value) {
  options.Today = ParseDate(value);
  return options.Today ? "" : "a date such as 2026-01-31";
}

std::string SetSeed(Options& options, const std::string& value) {
  unsigned long seed = 0;
  const auto [end, error] = std::from_chars(value.data(), value.data() + value.size(), seed);
  options.Seed = seed;
  return error == std::errc() && end == value.data() + value.size() ? "" : "a whole number";
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
