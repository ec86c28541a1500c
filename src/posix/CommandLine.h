// The options that both programs share, and how options are read from a table.
#pragma once

#include <optional>
#include <span>
#include <string>
#include <string_view>

namespace qves {

struct CommonOptions {
  bool Help = false;
  bool Version = false;
  std::optional<int> View;  ///< the CalcView to open; none: the stored one
  std::string Home;         ///< the folder below which everything lies; "" for the user's own places
};

/// An option that takes a value. `Set` returns false when the value is wrong.
template <class Options>
struct ValueOption {
  std::string_view Name;
  std::string_view Wants;
  bool (*Set)(Options&, const std::string& value);
};

/// standard, scientific, business or statistics.
bool SetView(CommonOptions& options, const std::string& value);
/// A folder, made when missing.
bool SetHome(CommonOptions& options, const std::string& value);

inline constexpr std::string_view ViewWants = "standard, scientific, business or statistics";
inline constexpr std::string_view HomeWants = "a folder";

/// Takes the option at `at`, and its value. False with the reason in `error`.
template <class Options>
bool TakeOption(Options& options, std::span<const ValueOption<Options>> table,
                std::span<const std::string> arguments, std::size_t& at, std::string& error) {
  const std::string& argument = arguments[at];
  if (argument == "--help") return options.Help = true;
  if (argument == "--version") return options.Version = true;
  for (const auto& option : table) {
    if (option.Name != argument) continue;
    if (at + 1 < arguments.size() && option.Set(options, arguments[++at])) return true;
    error = argument + " wants " + std::string(option.Wants);
    return false;
  }
  error = "unknown option " + argument;
  return false;
}

}  // namespace qves
