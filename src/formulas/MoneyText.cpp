#include "formulas/MoneyText.h"

#include <algorithm>

#include "text/Integers.h"

namespace qves {
namespace {

constexpr int Decimals = 2;

/// A number as digits and the place of the point among them; the place may lie outside.
struct Digits {
  std::string Text;
  int Point = 0;
};

Digits Read(std::string_view number) {
  Digits digits;
  const std::size_t exponentAt = std::min(number.find('E'), number.size());
  const std::string_view mantissa = number.substr(0, exponentAt);
  int exponent = 0;
  if (exponentAt < number.size()) {
    std::string_view rest = number.substr(exponentAt + 1);
    if (rest.starts_with('+')) rest.remove_prefix(1);
    exponent = ParseInteger(rest).value_or(0);
  }
  digits.Text = mantissa;
  std::erase(digits.Text, '.');
  digits.Point = static_cast<int>(std::min(mantissa.find('.'), mantissa.size())) + exponent;
  return digits;
}

/// Adds one to the last digit; true when the number has got a digit more at its front.
bool CountUp(std::string& digits) {
  for (std::size_t i = digits.size(); i-- > 0;) {
    if (digits[i] != '9') {
      ++digits[i];
      return false;
    }
    digits[i] = '0';
  }
  digits.insert(digits.begin(), '1');
  return true;
}

}  // namespace

std::string FormatMoney(std::string_view numberText) {
  const bool negative = numberText.starts_with('-');
  Digits number = Read(numberText.substr(negative ? 1 : 0));
  // At least one digit before the point, and one to round by.
  if (number.Point < 1) {
    number.Text.insert(0, static_cast<std::size_t>(1 - number.Point), '0');
    number.Point = 1;
  }
  const auto kept = static_cast<std::size_t>(number.Point + Decimals);
  if (number.Text.size() <= kept) number.Text.append(kept + 1 - number.Text.size(), '0');
  const bool up = number.Text[kept] >= '5';
  number.Text.resize(kept);
  if (up && CountUp(number.Text)) ++number.Point;
  const bool isZero = number.Text.find_first_not_of('0') == std::string::npos;
  number.Text.insert(static_cast<std::size_t>(number.Point), ".");
  const std::size_t first = std::min(number.Text.find_first_not_of('0'), number.Text.find('.') - 1);
  return (negative && !isZero ? "-" : "") + number.Text.substr(first);
}

}  // namespace qves
