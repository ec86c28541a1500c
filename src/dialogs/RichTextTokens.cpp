#include "dialogs/RichTextTokens.h"

#include <algorithm>

#include "text/Characters.h"
#include "text/Integers.h"

namespace qves {
namespace {

constexpr int LargestNumber = 1'000'000'000;

bool EndsText(char c) {
  return c == '\\' || c == '{' || c == '}' || c == '\r' || c == '\n';
}

// How many characters at the text's start fulfil the condition.
template <class Condition>
std::size_t Count(std::string_view text, Condition condition) {
  return static_cast<std::size_t>(std::find_if_not(text.begin(), text.end(), condition) - text.begin());
}

}  // namespace

RichToken RichTokenReader::Next() {
  Take(Count(Rest, [](char c) { return c == '\r' || c == '\n'; }));
  if (Rest.empty()) return {};
  switch (Rest.front()) {
    case '{':
      return {RichTokenKind::Open, Take(1), {}};
    case '}':
      return {RichTokenKind::Close, Take(1), {}};
    case '\\':
      Take(1);
      return Escaped();
    default:
      return {RichTokenKind::Text, Take(Count(Rest, [](char c) { return !EndsText(c); })), {}};
  }
}

std::string_view RichTokenReader::Take(std::size_t length) {
  const std::string_view taken = Rest.substr(0, length);
  Rest.remove_prefix(taken.size());
  return taken;
}

RichToken RichTokenReader::Escaped() {
  if (Rest.empty()) return {};
  return IsLetter(Rest.front()) ? Word() : Symbol();
}

RichToken RichTokenReader::Symbol() {
  const std::string_view symbol = Take(1);
  switch (symbol.front()) {
    case '\\':
    case '{':
    case '}':
      return {RichTokenKind::Text, symbol, {}};
    case '\'':
      return HexByte();
    case '\r':
    case '\n':
      return {RichTokenKind::Word, "par", {}};
    case '\t':
      return {RichTokenKind::Word, "tab", {}};
    default:
      return {RichTokenKind::Word, symbol, {}};
  }
}

RichToken RichTokenReader::HexByte() {
  const std::string_view digits = Rest.substr(0, 2);
  const auto value = ParseInteger<unsigned char>(digits, 16);
  if (digits.size() < 2 || !value) return {RichTokenKind::Word, "'", {}};
  Take(2);
  return {RichTokenKind::Byte, digits, *value};
}

RichToken RichTokenReader::Word() {
  RichToken token{RichTokenKind::Word, Take(Count(Rest, IsLetter)), Number()};
  if (Rest.starts_with(' ')) Take(1);
  if (token.Text == "bin") Take(static_cast<std::size_t>(std::max(0, token.Or(0))));
  return token;
}

std::optional<int> RichTokenReader::Number() {
  const bool negative = Rest.starts_with('-');
  const std::size_t length = Count(Rest.substr(negative), IsDigit);
  if (length == 0) return std::nullopt;
  Take(negative);
  const int number = std::min(ParseInteger(Take(length)).value_or(LargestNumber), LargestNumber);
  return negative ? -number : number;
}

}  // namespace qves
