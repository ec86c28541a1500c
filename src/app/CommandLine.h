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

/// An option that takes a value. `Set` tells what it wants when the value is wrong, "" when it is right.
template <class Options>
struct ValueOption {
  std::string_view Name;
  std::string (*Set)(Options&, const std::string& value);
};

/// The words of the views.
std::string ViewWords(std::string_view separator, std::string_view lastSeparator);
/// One of those words.
std::string SetView(CommonOptions& options, const std::string& value);
/// A folder, made when missing.
std::string SetHome(CommonOptions& options, const std::string& value);

/// Takes the option at `at`, and its value. False with the reason in `error`.
template <class Options>
bool TakeOption(Options& options, std::span<const ValueOption<Options>> table,
                std::span<const std::string> arguments, std::size_t& at, std::string& error) {
  const std::string& argument = arguments[at];
  if (argument == "--help") return options.Help = true;
  if (argument == "--version") return options.Version = true;
  for (const auto& option : table) {
    if (option.Name != argument) continue;
    const std::string wanted = option.Set(options, at + 1 < arguments.size() ? arguments[++at] : "");
    if (!wanted.empty()) error = argument + " wants " + wanted;
    return wanted.empty();
  }
  error = "unknown option " + argument;
  return false;
}

}  // namespace qves
