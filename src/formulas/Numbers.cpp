#include "formulas/Numbers.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <limits>

#include "model/ArithmeticFault.h"
#include "text/Integers.h"

namespace qves {
namespace {

constexpr int SignificantDigits = 15;

std::size_t CountDigits(std::string_view text) {
  return std::min(text.find_first_not_of("0123456789"), text.size());
}

std::string_view WithoutBlanks(std::string_view text) {
  while (text.starts_with(' ')) text.remove_prefix(1);
  while (text.ends_with(' ')) text.remove_suffix(1);
  return text;
}

/// The parts of an unsigned number text.
struct NumberParts {
  std::string_view Mantissa;  ///< digits with an optional point
  std::string_view Exponent;  ///< sign and digits; empty when absent
};

std::optional<NumberParts> Split(std::string_view text) {
  const std::size_t whole = CountDigits(text);
  std::size_t length = whole;
  std::size_t fraction = 0;
  if (text.substr(whole).starts_with('.')) {
    fraction = CountDigits(text.substr(whole + 1));
    length += 1 + fraction;
  }
  if (whole + fraction == 0) return std::nullopt;
  NumberParts parts{text.substr(0, length), {}};
  std::string_view rest = text.substr(length);
  if (rest.empty()) return parts;
  if (rest.front() != 'E' && rest.front() != 'e') return std::nullopt;
  rest.remove_prefix(1);
  const std::size_t sign = rest.starts_with('+') || rest.starts_with('-') ? 1 : 0;
  const std::size_t digits = CountDigits(rest.substr(sign));
  if (sign + digits != rest.size()) return std::nullopt;
  if (digits > 0) parts.Exponent = rest;
  return parts;
}

/// True when a number outside the range of doubles is too large, false when it is too small.
bool IsHuge(const NumberParts& parts) {
  const std::size_t point = std::min(parts.Mantissa.find('.'), parts.Mantissa.size());
  const std::size_t first = parts.Mantissa.find_first_not_of("0.");
  if (first == std::string_view::npos) return false;
  // The decimal order of the first digit that is not 0, the exponent cut where it decides alone.
  const auto order = static_cast<long long>(point) - static_cast<long long>(first);
  long long exponent = 0;
  std::string_view digits = parts.Exponent;
  const bool negative = digits.starts_with('-');
  if (negative || digits.starts_with('+')) digits.remove_prefix(1);
  if (ReadInteger(digits, exponent) == std::errc::result_out_of_range) return !negative;
  return order + (negative ? -exponent : exponent) > 0;
}

template <class Integer>
Integer ToInteger(double value, FaultReason reason) {
  const double rounded = std::nearbyint(value);
  if (!(rounded >= std::numeric_limits<Integer>::min() && rounded <= std::numeric_limits<Integer>::max()))
    throw ArithmeticFault(reason, "the number is outside its integer range");
  return static_cast<Integer>(rounded);
}

}  // namespace

double Checked(Real value) {
  const auto nearest = static_cast<double>(value);
  if (std::isnan(nearest)) throw ArithmeticFault(FaultReason::NotDefined, "the result is no number");
  if (!std::isfinite(nearest)) throw ArithmeticFault(FaultReason::TooLarge, "the result is not finite");
  return nearest == 0 ? 0 : nearest;
}

double Checked(Real value, FaultReason reason) {
  if (!std::isfinite(static_cast<double>(value)))
    throw ArithmeticFault(reason, "the result is not finite or no number");
  return Checked(value);
}

std::string NumberToText(double value) {
  if (value == 0) return "0";
  std::array<char, 40> buffer;
  const auto result = std::to_chars(buffer.data(), buffer.data() + buffer.size(), value,
                                    std::chars_format::general, SignificantDigits);
  std::replace(buffer.data(), result.ptr, 'e', 'E');
  return {buffer.data(), result.ptr};
}

std::optional<double> ParseNumber(std::string_view text) {
  text = WithoutBlanks(text);
  const bool negative = text.starts_with('-');
  if (negative || text.starts_with('+')) text.remove_prefix(1);
  const auto parts = Split(text);
  if (!parts) return std::nullopt;
  // Without an exponent digit the text ends with its mantissa.
  const std::string_view number = parts->Exponent.empty() ? parts->Mantissa : text;
  double value = 0;
  const char* begin = number.data();
  const char* end = begin + number.size();
  const auto [stop, error] = std::from_chars(begin, end, value);
  if (error == std::errc::result_out_of_range) {
    if (IsHuge(*parts)) throw ArithmeticFault(FaultReason::TooLarge, "the number is too large");
    value = 0;
  }
  return negative && value != 0 ? -value : value;
}

std::int32_t ToInt32(double value, FaultReason reason) {
  return ToInteger<std::int32_t>(value, reason);
}

std::int16_t ToInt16(double value, FaultReason reason) {
  return ToInteger<std::int16_t>(value, reason);
}

bool IsBeyondADouble(std::string_view entry) {
  // The smallest double begins 324 places behind the point, and 767 digits from its first one decide every
  // rounding.
  constexpr std::size_t deciding = 1200;
  constexpr std::size_t longestWhole = 100;
  if (entry.size() <= deciding + 1) return false;
  const std::string_view start = entry.substr(0, longestWhole);
  if (start.find('.') == std::string_view::npos || start.find_first_of("Ee") != std::string_view::npos)
    return false;
  // A digit that is not 0 behind an exact half would still round it up: only the first such one counts.
  const std::string_view before = entry.substr(deciding, entry.size() - deciding - 1);
  return entry.back() == '0' || before.find_first_not_of('0') != std::string_view::npos;
}

double TextToNumber(std::string_view text) {
  const auto value = ParseNumber(text);
  if (!value) throw ArithmeticFault(FaultReason::NotANumber, "the text is no number");
  return *value;
}

}  // namespace qves
