#include "voicing/SpokenNumber.h"

#include <algorithm>

#include "text/Characters.h"

namespace qves {
namespace {

constexpr std::size_t LongestWhole = 15;    // digits that a voice reads as one number
constexpr std::size_t ShortestToGroup = 5;  // digits of a fraction
constexpr std::string_view MinusNeighbours = " \t\r\n(=";

/// Reads the parts of a number one after another.
class NumberReader {
 public:
  NumberReader(std::string_view text, std::size_t at, const VoicingRules& rules)
      : Text(text), Start(at), At(at), Rules(rules) {}

  std::optional<SpokenNumber> Read() {
    SpokenNumber number;
    number.Negative = TakeMinus();
    if (!number.Negative && Start > 0 && (IsDigit(Text[Start - 1]) || IsLetter(Text[Start - 1]))) return {};
    number.Whole = TakeDigits();
    if (number.Whole.empty()) return {};
    const std::size_t point = At;
    if (TakePoint()) number.Fraction = TakeDigits();
    ReadExponent(number);
    // "5.e+3" is how the scientific notation writes 5000; but for that a point has a digit behind it.
    if (number.Fraction.empty() && number.Exponent.empty()) At = point;
    number.Length = At - Start;
    return number;
  }

 private:
  bool Take(std::string_view part) {
    if (part.empty() || !Text.substr(At).starts_with(part)) return false;
    At += part.size();
    return true;
  }

  bool TakeMinus() {
    const bool mayBeSign = Start == 0 || MinusNeighbours.find(Text[Start - 1]) != std::string_view::npos;
    if (Rules.Words.Minus.empty()) return false;
    return (mayBeSign && Take("-")) || Take(Rules.Words.SpokenMinus);
  }

  bool TakePoint() {
    if (Rules.Words.HeardPoint.empty()) return false;
    return Take(Rules.Words.Separator) || Take(".") || Take(Rules.Words.Point);
  }

  std::string TakeDigits() {
    const std::size_t begin = At;
    while (At < Text.size() && IsDigit(Text[At])) ++At;
    std::string digits(Text.substr(begin, At - begin));
    // Digits that were spoken apart belong together.
    while (Rules.DigitsApart && IsDigitApart(At)) digits += Text[(At += 2) - 1];
    return digits;
  }

  bool IsDigitApart(std::size_t at) const {
    return at > 0 && at + 1 < Text.size() && IsDigit(Text[at - 1]) && Text[at] == ' ' &&
           IsDigit(Text[at + 1]) && !(at + 2 < Text.size() && IsDigit(Text[at + 2]));
  }

  void ReadExponent(SpokenNumber& number) {
    const std::size_t before = At;
    if (!Take("E") && !Take("e")) return;
    number.ExponentNegative = Take("-") || Take(Rules.Words.SpokenMinus);
    if (!number.ExponentNegative) Take("+");
    number.Exponent = TakeDigits();
    if (number.Exponent.empty()) At = before;
  }

  std::string_view Text;
  std::size_t Start;
  std::size_t At;
  const VoicingRules& Rules;
};

/// The digits with a blank between any two and, counted from the right or the left, a comma after each group.
std::string DigitByDigit(std::string_view digits, std::size_t group, bool fromRight) {
  std::string out;
  for (std::size_t i = 0; i < digits.size(); ++i) {
    const std::size_t place = fromRight ? digits.size() - i : i;
    if (i > 0) out += place % group == 0 ? ", " : " ";
    out += digits[i];
  }
  return out;
}

std::string InRuns(std::string_view digits, std::size_t length) {
  std::string out;
  for (std::size_t i = 0; i < digits.size(); ++i) {
    if (i > 0 && (digits.size() - i) % length == 0) out += ", ";
    out += digits[i];
  }
  return out;
}

std::string WholeInWords(std::string_view digits, NumberReading reading) {
  if (digits.size() > LongestWhole || (digits.size() > 1 && digits[0] == '0'))
    return DigitByDigit(digits, 3, true);
  switch (reading) {
    case NumberReading::Digits:
      return DigitByDigit(digits, digits.size(), false);
    case NumberReading::Pairs:
      return InRuns(digits, 2);
    case NumberReading::Triples:
      return InRuns(digits, 3);
    default:
      return std::string(digits);
  }
}

std::string FractionInWords(std::string_view digits) {
  return DigitByDigit(digits, digits.size() < ShortestToGroup ? digits.size() : 3, false);
}

/// Rounds to so many decimals, halves away from zero.
void Round(SpokenNumber& number, std::size_t decimals) {
  const bool up = number.Fraction[decimals] >= '5';
  number.Fraction.resize(decimals);
  std::string digits = number.Whole + number.Fraction;
  std::size_t i = digits.size();
  while (up && i > 0 && digits[i - 1] == '9') digits[--i] = '0';
  if (up && i > 0)
    ++digits[i - 1];
  else if (up)
    digits.insert(0, 1, '1');
  number.Whole = digits.substr(0, digits.size() - decimals);
  number.Fraction = digits.substr(digits.size() - decimals);
  if (digits.find_first_not_of('0') == std::string::npos) number.Negative = false;
}

std::string WithoutLeadingZeros(std::string_view digits) {
  return std::string(digits.substr(std::min(digits.find_first_not_of('0'), digits.size() - 1)));
}

}  // namespace

std::optional<SpokenNumber> FindNumber(std::string_view text, std::size_t at, const VoicingRules& rules) {
  return NumberReader(text, at, rules).Read();
}

std::string NumberInWords(SpokenNumber number, const VoicingRules& rules) {
  const VoiceWords& words = rules.Words;
  std::string out;
  if (rules.Decimals != AllDecimals && number.Fraction.size() > std::size_t(rules.Decimals)) {
    Round(number, std::size_t(rules.Decimals));
    out = words.About + " ";
  }
  if (number.Negative) out += words.Minus + " ";
  out += WholeInWords(number.Whole, rules.Reading);
  if (!number.Fraction.empty()) out += " " + words.HeardPoint + " " + FractionInWords(number.Fraction);
  if (number.Exponent.empty()) return out;
  return out + " " + words.TimesTenToThe + " " + (number.ExponentNegative ? words.Minus + " " : "") +
         WithoutLeadingZeros(number.Exponent);
}

std::string DateNumberInWords(const SpokenNumber& number, const VoicingRules& rules) {
  constexpr std::size_t dayDigits = 2;
  const std::string_view fraction = number.Fraction;
  std::string out = WholeInWords(number.Whole, rules.Reading);
  if (fraction.empty()) return out;
  out += " " + rules.Words.HeardPoint + " " + FractionInWords(fraction.substr(0, dayDigits));
  if (fraction.size() <= dayDigits) return out;
  const std::string_view year = fraction.substr(dayDigits);
  return out + ", " + DigitByDigit(year, year.size(), false);
}

std::string BaseDigitsInWords(std::string_view digits) {
  constexpr std::size_t group = 4;
  std::string out;
  for (std::size_t i = 0; i < digits.size(); ++i) {
    if (i > 0) out += (digits.size() - i) % group == 0 || digits[i - 1] == 'A' ? ", " : " ";
    out += digits[i];
  }
  return out;
}

}  // namespace qves
