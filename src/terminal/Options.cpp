#include "terminal/Options.h"

#include <array>
#include <charconv>
#include <chrono>
#include <cstdio>
#include <filesystem>

#include "services/AppSettings.h"

namespace qves {
namespace {

struct Named {
  std::string_view Name;
  int Value;
};

constexpr Named ViewNames[] = {{"standard", StandardView},
                               {"scientific", ScientificView},
                               {"business", BusinessView},
                               {"statistics", StatisticsView}};

constexpr int TranscriptOnly = -1;
constexpr Named SpeechNames[] = {{"transcript", TranscriptOnly},
                                 {"auto", static_cast<int>(SpeechChoice::Auto)},
                                 {"speech-dispatcher", static_cast<int>(SpeechChoice::SpeechDispatcher)},
                                 {"espeak-ng", static_cast<int>(SpeechChoice::EspeakNg)},
                                 {"off", static_cast<int>(SpeechChoice::Off)}};

template <std::size_t Count>
std::optional<int> FindNamed(const Named (&table)[Count], std::string_view name) {
  for (const Named& row : table)
    if (row.Name == name) return row.Value;
  return std::nullopt;
}

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

/// One option that takes a value; false when the value is wrong.
struct ValueOption {
  std::string_view Name;
  std::string_view Wants;
  bool (*Set)(Options&, const std::string& value);
};

constexpr ValueOption ValueOptions[] = {
    {"--view", "standard, scientific, business or statistics",
     [](Options& options, const std::string& value) {
       options.View = FindNamed(ViewNames, value);
       return options.View.has_value();
     }},
    {"--today", "a date such as 2026-01-31",
     [](Options& options, const std::string& value) {
       options.Today = ParseDate(value);
       return options.Today.has_value();
     }},
    {"--seed", "a whole number",
     [](Options& options, const std::string& value) {
       unsigned long seed = 0;
       const auto [end, error] = std::from_chars(value.data(), value.data() + value.size(), seed);
       options.Seed = seed;
       return error == std::errc() && end == value.data() + value.size();
     }},
    {"--home", "a folder",
     [](Options& options, const std::string& value) {
       options.Home = value;
       std::error_code ignored;
       std::filesystem::create_directories(value, ignored);
       return std::filesystem::is_directory(value, ignored);
     }},
    {"--speech", "transcript, auto, speech-dispatcher, espeak-ng or off",
     [](Options& options, const std::string& value) {
       const auto choice = FindNamed(SpeechNames, value);
       if (choice && *choice != TranscriptOnly) options.Speech = static_cast<SpeechChoice>(*choice);
       return choice.has_value();
     }},
};

const ValueOption* FindOption(std::string_view name) {
  for (const ValueOption& option : ValueOptions)
    if (option.Name == name) return &option;
  return nullptr;
}

}  // namespace

std::optional<Options> ParseOptions(const std::vector<std::string>& arguments, std::string& error) {
  Options options;
  for (std::size_t i = 0; i < arguments.size(); ++i) {
    const std::string& argument = arguments[i];
    const bool hasNext = i + 1 < arguments.size();
    if (argument == "--help") {
      options.Help = true;
    } else if (argument == "--version") {
      options.Version = true;
    } else if (argument == "--script") {
      options.Script = true;
      if (hasNext && !arguments[i + 1].starts_with("--")) options.ScriptFile = arguments[++i];
    } else if (const ValueOption* option = FindOption(argument)) {
      if (!hasNext || !option->Set(options, arguments[++i])) {
        error = argument + " wants " + std::string(option->Wants);
        return std::nullopt;
      }
    } else {
      error = "unknown option " + argument;
      return std::nullopt;
    }
  }
  return options;
}

std::string_view HelpText() {
  return "qvescalc-cli [OPTIONS]             plays one short calculation and tells how to go on\n"
         "qvescalc-cli --script [FILE]       runs the commands of FILE, or of standard input\n"
         "\n"
         "  --view standard|scientific|business|statistics   the view to open (default: the one used last)\n"
         "  --today YYYY-MM-DD                               the date that the calculator takes as today\n"
         "  --seed N                                         the start of the random numbers\n"
         "  --home DIR                                       all settings and documents lie below DIR\n"
         "  --speech transcript|auto|speech-dispatcher|espeak-ng|off\n"
         "                                                   what speaks (default: a transcript only)\n"
         "  --help, --version\n";
}

}  // namespace qves
