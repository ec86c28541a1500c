// Texts of whole numbers in the four number bases. A text with a sign bit set is a negative number: this
// decides what a hexadecimal, octal or binary text means, and is wanted so.
#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace qves {

struct NumberBase {
  /// The list index of the number base.
  enum : int { Hexadecimal = 0, Decimal = 1, Octal = 2, Binary = 3 };
};

/// The value of a text in a base; nothing when the text is no number in it. Up to four hexadecimal digits,
/// and up to six octal ones that fit, are a signed 16-bit integer; more are a signed 32-bit one, and a text
/// beyond 32 bits faults. Of a binary text only the last 32 digits count, as a 32-bit integer.
std::optional<double> ReadInBase(int base, std::string_view text);
/// The same, but a text that is no number faults.
double BaseTextToValue(int base, std::string_view text);

/// The text converted from one base to another; unchanged for bases outside 0 to 3. A fraction is lost on the
/// way out of the decimal base: the number is truncated toward zero. Faults when the number does not fit a
/// signed 32-bit integer.
std::string ConvertBase(int from, int to, std::string_view text);

/// Each hexadecimal digit as four binary ones, without leading zeros; "0" for nothing but zeros. Other
/// characters are skipped.
std::string HexToBinaryText(std::string_view text);
/// The last 32 binary digits as hexadecimal ones: always eight, leading zeros included. That is wanted: read
/// back, the eight digits mean a 32-bit integer.
std::string BinaryToHexText(std::string_view text);

}  // namespace qves
