// Numbers in scientific notation.
#pragma once

#include <string>
#include <string_view>

namespace qves {

/// A number text ("123", "-45.6", "0.00123", at most 15 significant digits) in scientific notation, with as
/// many decimals as the number has: "1.23e+2", "-4.56e+1", "1.23e-3". A single digit keeps its point:
/// "5.e+0"; 0 is "0.e+0". A text that has an "E" already is returned as it is.
std::string SciFormat(std::string_view text);

}  // namespace qves
