// Whole numbers from their texts.
#pragma once

#include <charconv>
#include <concepts>
#include <optional>
#include <string_view>

namespace qves {

/// Reads a text that is all an integer: digits, and "-" before one that has a sign. What the type cannot hold
/// is `result_out_of_range`, any other text `invalid_argument`; the value stays then.
template <std::integral Integer>
std::errc ReadInteger(std::string_view text, Integer& value, int radix = 10) {
  Integer read = value;
  const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), read, radix);
  if (end != text.data() + text.size()) return std::errc::invalid_argument;
  value = read;
  return error;
}

/// The same as a value: nothing when the text is no integer or one that the type cannot hold.
template <std::integral Integer = int>
std::optional<Integer> ParseInteger(std::string_view text, int radix = 10) {
  Integer value = 0;
  return ReadInteger(text, value, radix) == std::errc() ? std::optional(value) : std::nullopt;
}

}  // namespace qves
