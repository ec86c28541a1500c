#include "formulas/ForeignNumber.h"

#include <algorithm>
#include <array>
#include <string>

#include "formulas/Numbers.h"
#include "model/ArithmeticFault.h"

namespace qves {
namespace {

constexpr std::size_t LongestText = 1000;
constexpr std::string_view DecimalMarks = ".,";
constexpr std::string_view Gaps = " '";

// A foreign text is first written with these alone; what cannot be is no number.
constexpr std::string_view PlainCharacters = "0123456789ABCDEFHOX&+-.,'()$% ";

struct PlainRow {
  char Plain;
  std::string_view Foreign;
};
constexpr PlainRow PlainRows[] = {
    {' ', "\u00A0\u1680\u2000\u2001\u2002\u2003\u2004\u2005\u2006\u2007\u2008\u2009\u200A\u202F\u205F\u3000"},
    {'-', "\u2010\u2011\u2012\u2013\u2212\uFE63\uFF0D"},
    {'\'', "\u2019\u02BC"},
    {'%', "\u066A\uFE6A\uFF05"},
    {'$',
     "\u00A2\u00A3\u00A4\u00A5\u058F\u060B\u07FE\u07FF\u09F2\u09F3\u09FB\u0AF1\u0BF9\u0E3F\u17DB"
     "₠₡₢₣₤₥₦₧₨₩₪₫€₭₮₯₰₱₲₳₴₵₶₷₸₹₺₻₼₽₾₿⃀"
     "\uA838\uFDFC\uFE69\uFF04\uFFE0\uFFE1\uFFE5\uFFE6"
     "\U00011FDD\U00011FDE\U00011FDF\U00011FE0\U0001E2FF\U0001ECB0"},
};

/// The bytes of the character at the start of a UTF-8 text that is not empty; none when it is broken.
std::string_view FirstCharacter(std::string_view text) {
  const auto first = static_cast<unsigned char>(text.front());
  const std::size_t length = first < 0x80 ? 1 : first < 0xC0 ? 0 : first < 0xE0 ? 2 : first < 0xF0 ? 3 : 4;
  return text.substr(0, length <= text.size() ? length : 0);
}

using AsciiTable = std::array<char, 0x80>;

/// The plain character of each ASCII character; 0 when there is none.
constexpr AsciiTable PlainAscii = [] {
  AsciiTable table{};
  for (const char c : PlainCharacters) table[static_cast<std::size_t>(c)] = c;
  for (std::size_t c = 'a'; c <= 'z'; ++c) table[c] = table[c - 'a' + 'A'];
  return table;
}();

/// 0 when there is none.
char PlainCharacter(std::string_view character) {
  if (character.size() == 1) return PlainAscii[static_cast<std::size_t>(character[0])];
  for (const PlainRow& row : PlainRows)
    if (row.Foreign.find(character) != std::string_view::npos) return row.Plain;
  return 0;
}

/// The text in plain characters; nothing when it has others.
std::optional<std::string> ToPlain(std::string_view text) {
  std::string plain;
  while (!text.empty()) {
    const std::string_view character = FirstCharacter(text);
    if (character.empty()) return std::nullopt;
    const char c = PlainCharacter(character);
    if (c == 0) return std::nullopt;
    plain += c;
    text.remove_prefix(character.size());
  }
  return plain;
}

bool IsDigit(char c) {
  return c >= '0' && c <= '9';
}

std::string_view Trim(std::string_view text, std::string_view characters) {
  text.remove_prefix(std::min(text.find_first_not_of(characters), text.size()));
  return text.substr(0, text.find_last_not_of(characters) + 1);
}

std::string Without(std::string_view text, std::string_view characters) {
  std::string rest(text);
  std::erase_if(rest, [&](char c) { return characters.find(c) != std::string_view::npos; });
  return rest;
}

/// A number and what has been taken off around it, each at most once.
struct Wrapped {
  std::string_view Number;
  bool Currency = false;
  bool Percent = false;
  bool Signed = false;
  bool Negative = false;
};

bool TakeFront(std::string_view& text, char c) {
  if (!text.starts_with(c)) return false;
  text.remove_prefix(1);
  return true;
}

bool TakeBack(std::string_view& text, char c) {
  if (!text.ends_with(c)) return false;
  text.remove_suffix(1);
  return true;
}

bool TakeOnce(bool& taken, std::string_view& text, char c) {
  if (taken) return false;
  taken = TakeFront(text, c) || TakeBack(text, c);
  return taken;
}

/// "5,-" is no negative number: the dash stands for the cents.
bool EndsWithADash(std::string_view text) {
  return text.ends_with(".-") || text.ends_with(",-");
}

bool TakeSign(Wrapped& text) {
  if (text.Signed) return false;
  std::string_view& number = text.Number;
  const bool around = number.starts_with('(') && number.ends_with(')');
  text.Negative = (around && TakeFront(number, '(') && TakeBack(number, ')')) || TakeFront(number, '-') ||
                  (!EndsWithADash(number) && TakeBack(number, '-'));
  text.Signed = text.Negative || TakeFront(number, '+');
  return text.Signed;
}

Wrapped Unwrap(std::string_view plain) {
  Wrapped text{Trim(plain, " ")};
  while (TakeOnce(text.Currency, text.Number, '$') || TakeOnce(text.Percent, text.Number, '%') ||
         TakeSign(text))
    text.Number = Trim(text.Number, " ");
  return text;
}

/// How many digits the last group of a number has, and every group before it but the first.
struct Grouping {
  std::size_t Last;
  std::size_t Others;
};
constexpr Grouping Groupings[] = {{3, 3}, {3, 2}, {4, 4}};

std::string WriteGrouped(std::string digits, char mark, const Grouping& grouping) {
  std::size_t size = grouping.Last;
  for (std::size_t at = digits.size(); at > size; size = grouping.Others) digits.insert(at -= size, 1, mark);
  return digits;
}

/// The digits of a whole number without the marks between its groups; nothing when they stand elsewhere.
std::optional<std::string> Ungroup(std::string_view whole, char mark) {
  std::string digits(whole);
  std::erase(digits, mark);
  const auto isWhole = [&](const Grouping& each) { return WriteGrouped(digits, mark, each) == whole; };
  if (!std::all_of(digits.begin(), digits.end(), IsDigit)) return std::nullopt;
  if (digits.size() != whole.size() && std::none_of(std::begin(Groupings), std::end(Groupings), isWhole))
    return std::nullopt;
  return digits;
}

/// "1,234" and "1.234": one and a fraction, or more than a thousand.
bool CouldBeEither(std::string_view mantissa, std::size_t mark) {
  constexpr std::size_t group = 3;
  return mark >= 1 && mark <= group && mantissa.size() == mark + 1 + group && mantissa.front() != '0';
}

/// Where the decimal mark stands; nothing when the number is whole. Nobody groups digits before an exponent.
std::size_t FindDecimalMark(std::string_view mantissa, bool hasExponent, bool decimalComma) {
  const std::size_t last = mantissa.find_last_of(DecimalMarks);
  if (last == std::string_view::npos || mantissa.find(mantissa[last]) != last) return std::string_view::npos;
  const bool alone = Without(mantissa, ".,' ").size() == mantissa.size() - 1;
  const bool either = alone && !hasExponent && CouldBeEither(mantissa, last);
  return either && (mantissa[last] == ',') != decimalComma ? std::string_view::npos : last;
}

std::optional<double> ReadDecimal(std::string_view number, bool decimalComma) {
  const std::size_t end = std::min(number.find('E'), number.size());
  const std::string_view mantissa = number.substr(0, end);
  const std::string_view exponent = number.substr(end);
  if (!exponent.empty() && !IsDigit(exponent.back())) return std::nullopt;
  const std::size_t mark = std::min(FindDecimalMark(mantissa, !exponent.empty(), decimalComma), end);
  const std::string_view whole = mantissa.substr(0, mark);
  const std::size_t group = whole.find_first_of(".,' ");
  const auto digits = group == std::string_view::npos ? Ungroup(whole, ' ') : Ungroup(whole, whole[group]);
  if (!digits) return std::nullopt;
  const std::string_view fraction = mark < end ? mantissa.substr(mark + 1) : "";
  return ParseNumber(*digits + "." + std::string(fraction) + std::string(exponent));
}

struct BasePrefix {
  std::string_view Text;
  int Base;
};
constexpr BasePrefix BasePrefixes[] = {{"0X", NumberBase::Hexadecimal},
                                       {"&H", NumberBase::Hexadecimal},
                                       {"&O", NumberBase::Octal},
                                       {"0B", NumberBase::Binary}};

std::optional<double> ReadDigits(std::string_view number, const ForeignStyle& style) {
  for (const BasePrefix& prefix : BasePrefixes)
    if (number.starts_with(prefix.Text) &&
        !(style.Base == NumberBase::Hexadecimal && prefix.Base == NumberBase::Binary))
      return ReadInBase(prefix.Base, Without(number.substr(prefix.Text.size()), Gaps));
  if (style.Base != NumberBase::Decimal) return ReadInBase(style.Base, Without(number, Gaps));
  return ReadDecimal(number, style.DecimalComma);
}

std::optional<double> ReadWrapped(const Wrapped& text, const ForeignStyle& style) {
  auto value = ReadDigits(text.Number, style);
  if (!value) return std::nullopt;
  if (text.Percent) *value /= 100;
  return text.Negative && *value != 0 ? -*value : *value;
}

}  // namespace

std::optional<double> ReadForeignNumber(std::string_view text, const ForeignStyle& style) {
  if (text.empty() || text.size() > LongestText) return std::nullopt;
  const auto plain = ToPlain(Trim(text, " \t\r\n"));
  if (!plain) return std::nullopt;
  try {
    return ReadWrapped(Unwrap(*plain), style);
  } catch (const ArithmeticFault&) {
    if (style.Base != NumberBase::Decimal) throw;
    return std::nullopt;  // it is beyond a double, or its digits beyond 32 bits
  }
}

char ShownDecimalMark(std::string_view text) {
  const std::size_t last = text.find_last_of(DecimalMarks);
  if (last == std::string_view::npos) return 0;
  const auto value = ReadForeignNumber(text, {});
  if (!value || value != ReadForeignNumber(text, {.DecimalComma = true})) return 0;
  const bool groups = text.find(text[last]) != last;
  return (text[last] == ',') != groups ? ',' : '.';
}

}  // namespace qves
