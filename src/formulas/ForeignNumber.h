// Number texts as spreadsheets, web pages and other programs write them.
#pragma once

#include <optional>
#include <string_view>

#include "formulas/NumberBases.h"

namespace qves {

/// How a text is read that could mean more than one number.
struct ForeignStyle {
  int Base = NumberBase::Decimal;  ///< bare digits are digits of this number base
  bool DecimalComma = false;       ///< "1,234" is a little more than one, not more than a thousand
};

/// The value of a number text in UTF-8: with blanks, one currency sign, one percent sign (a hundredth of the
/// number), one sign, also behind it, or parentheses around it for a negative number; a decimal text with
/// comma or point, groups of digits and an exponent; 0x, &H, &O or 0b before digits (0b not in hexadecimal,
/// where it begins a number); else digits of the base, read as ReadInBase does. Nothing when the text is no
/// number, longer than 1,000 bytes or beyond a double. Faults when the digits are beyond 32 bits and the base
/// is not decimal: a number, which that base cannot hold.
std::optional<double> ReadForeignNumber(std::string_view text, const ForeignStyle& style);

/// The decimal mark, ',' or '.', of whoever wrote the decimal number: "1,5", "1.234,5" and "1.234.567" show a
/// comma. 0 when the text shows none: "12", "1,234", or no number.
char ShownDecimalMark(std::string_view text);

}  // namespace qves
