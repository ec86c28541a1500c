// Amounts with two decimals.
#pragma once

#include <string>
#include <string_view>

namespace qves {

/// A number text of at most 15 significant digits ("2.675", "1E+20") with exactly two decimals, without
/// thousands separators: "2.68", "100000000000000000000.00". The decimal digits are rounded, halves away from
/// zero. Never "-0.00".
std::string FormatMoney(std::string_view numberText);

}  // namespace qves
