#include "formulas/NumberBases.h"

#include <array>
#include <cmath>
#include <cstdint>

#include "formulas/Numbers.h"
#include "model/ArithmeticFault.h"
#include "text/Integers.h"

namespace qves {
namespace {

constexpr std::string_view HexDigits = "0123456789ABCDEF";
constexpr std::size_t BitsOfADigit = 4;
constexpr std::size_t LongestShortHex = 4;  // digits of a 16-bit integer
constexpr std::size_t LongestHex = 8;
constexpr std::size_t LongestShortOctal = 6;
constexpr std::size_t LongestBinary = 32;

/// Nothing when a character is no digit of that radix; faults beyond 32 bits.
std::optional<std::uint32_t> ReadDigits(std::string_view text, int radix) {
  std::uint32_t value = 0;
  const std::errc error = ReadInteger(text, value, radix);
  if (error == std::errc::result_out_of_range)
    throw ArithmeticFault(FaultReason::OutOfBase, "the number has more than 32 bits");
  return error == std::errc() ? std::optional(value) : std::nullopt;
}

double Signed(std::uint32_t value, bool isShort) {
  return isShort ? static_cast<std::int16_t>(value) : static_cast<std::int32_t>(value);
}

std::optional<double> ReadHexadecimal(std::string_view text) {
  if (text.size() > LongestHex && text.find_first_not_of(HexDigits) == std::string_view::npos)
    throw ArithmeticFault(FaultReason::OutOfBase, "the number has more than eight digits");
  const auto value = ReadDigits(text, 16);
  if (!value) return std::nullopt;
  return Signed(*value, text.size() <= LongestShortHex);
}

std::optional<double> ReadOctal(std::string_view text) {
  const auto value = ReadDigits(text, 8);
  if (!value) return std::nullopt;
  return Signed(*value, text.size() <= LongestShortOctal && *value <= UINT16_MAX);
}

std::optional<double> ReadBinary(std::string_view text) {
  if (text.empty() || text.find_first_not_of("01") != std::string_view::npos) return std::nullopt;
  return ReadHexadecimal(BinaryToHexText(text));
}

std::string Write(std::uint32_t value, int radix) {
  std::array<char, LongestBinary> buffer;
  const auto result = std::to_chars(buffer.data(), buffer.data() + buffer.size(), value, radix);
  std::string text(buffer.data(), result.ptr);
  for (char& digit : text)
    if (digit >= 'a') digit = static_cast<char>(digit - 'a' + 'A');
  return text;
}

/// The text, in any base but decimal, of a whole number. Faults outside the signed 32-bit range.
std::string WriteInBase(int base, double value) {
  const auto bits = static_cast<std::uint32_t>(ToInt32(value, FaultReason::OutOfBase));
  if (base == NumberBase::Octal) return Write(bits, 8);
  const std::string hexadecimal = Write(bits, 16);
  return base == NumberBase::Binary ? HexToBinaryText(hexadecimal) : hexadecimal;
}

bool IsBase(int base) {
  return base >= NumberBase::Hexadecimal && base <= NumberBase::Binary;
}

}  // namespace

std::optional<double> ReadInBase(int base, std::string_view text) {
  switch (base) {
    case NumberBase::Hexadecimal:
      return ReadHexadecimal(text);
    case NumberBase::Octal:
      return ReadOctal(text);
    case NumberBase::Binary:
      return ReadBinary(text);
    default:
      return ParseNumber(text);
  }
}

double BaseTextToValue(int base, std::string_view text) {
  const auto value = ReadInBase(base, text);
  if (!value) throw ArithmeticFault(FaultReason::NotANumber, "the text is no number in its base");
  return *value;
}

std::string ConvertBase(int from, int to, std::string_view text) {
  if (from == to || !IsBase(from) || !IsBase(to)) return std::string(text);
  // These two go digit by digit, so that a short text keeps its length and with it its meaning.
  if (from == NumberBase::Hexadecimal && to == NumberBase::Binary) return HexToBinaryText(text);
  if (from == NumberBase::Binary && to == NumberBase::Hexadecimal) return BinaryToHexText(text);
  const double value = BaseTextToValue(from, text);
  return to == NumberBase::Decimal ? NumberToText(value) : WriteInBase(to, std::trunc(value));
}

std::string HexToBinaryText(std::string_view text) {
  std::string bits;
  for (const char digit : text) {
    const std::size_t value = HexDigits.find(digit);
    if (value == std::string_view::npos) continue;
    for (std::size_t bit = BitsOfADigit; bit-- > 0;) bits += (value >> bit & 1) != 0 ? '1' : '0';
  }
  const std::size_t first = bits.find('1');
  return first == std::string::npos ? "0" : bits.substr(first);
}

std::string BinaryToHexText(std::string_view text) {
  if (text.size() > LongestBinary) text.remove_prefix(text.size() - LongestBinary);
  std::string padded(LongestBinary - text.size(), '0');
  padded += text;
  std::string hexadecimal;
  for (std::size_t group = 0; group < LongestBinary; group += BitsOfADigit) {
    std::size_t value = 0;
    for (const char bit : padded.substr(group, BitsOfADigit)) value = value * 2 + (bit == '1' ? 1 : 0);
    hexadecimal += HexDigits[value];
  }
  return hexadecimal;
}

}  // namespace qves
