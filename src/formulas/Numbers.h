// Numbers and their texts. Nothing here depends on the locale.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "model/ArithmeticFault.h"

namespace qves {

inline constexpr double Pi = 3.1415926535897932384626433832795;

/// What formulas compute in: wide enough that a result, rounded once, is right in the 15 digits that are
/// shown.
using Real = long double;

/// The double nearest to the value, never a negative zero; faults when it is not finite.
double Checked(Real value);
/// The same with a reason of the caller's own.
double Checked(Real value, FaultReason reason);

/// The general text of a number: up to 15 significant digits, "-" for negative ones, exponent form ("1E+20",
/// "1E-05") for very large and very small magnitudes. Negative zero is "0".
std::string NumberToText(double value);

/// The value of a text: blanks around, a sign, digits with a point, an exponent of "E" or "e". An exponent
/// that has no digit yet counts as absent. Nothing when the text is no number; faults when it is beyond a
/// double; a value too small for one is 0.
std::optional<double> ParseNumber(std::string_view text);

/// The value rounded, halves to even, as a signed integer of that many bits. Faults outside its range.
std::int32_t ToInt32(double value, FaultReason reason = FaultReason::OutOfRange);
std::int16_t ToInt16(double value, FaultReason reason = FaultReason::OutOfRange);

/// True when one more digit at the end of a plain decimal entry can no longer change its value: it stands so
/// far behind the point that a double does not see it. Keeps the typing of very long entries quick.
bool IsBeyondADouble(std::string_view entry);

/// As ParseNumber, but faults when the text is no number.
double TextToNumber(std::string_view text);

}  // namespace qves
