#include "formulas/SciFormat.h"

#include <algorithm>

namespace qves {

std::string SciFormat(std::string_view text) {
  if (text.find('E') != std::string_view::npos) return std::string(text);
  const bool negative = text.starts_with('-');
  if (negative) text.remove_prefix(1);
  const std::size_t point = std::min(text.find('.'), text.size());
  const std::size_t first = text.find_first_not_of(".0");
  if (first == std::string_view::npos) return "0.e+0";
  std::string digits(text.substr(first));
  std::erase(digits, '.');
  // Zeros count when they stand behind a point, and never at the end of a whole number.
  if (point == text.size()) digits.erase(digits.find_last_not_of('0') + 1);
  const bool isFraction = first > point;
  const std::size_t exponent = isFraction ? first - point : point - first - 1;
  return (negative ? "-" : "") + digits.substr(0, 1) + "." + digits.substr(1) + (isFraction ? "e-" : "e+") +
         std::to_string(exponent);
}

}  // namespace qves
