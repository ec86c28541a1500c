#include "text/TextPlaces.h"

#include <algorithm>

#include "text/Utf8.h"

namespace qves {
namespace {

constexpr std::string_view LineEnd = "\r\n";

}  // namespace

TextSpan LineAround(std::string_view text, std::size_t at) {
  at = std::min(at, text.size());
  const std::size_t before = at == 0 ? std::string_view::npos : text.rfind('\n', at - 1);
  const std::size_t start = before == std::string_view::npos ? 0 : before + 1;
  const std::size_t end = std::min(text.find('\n', at), text.size());
  const bool hasReturn = end < text.size() && end > start && text[end - 1] == '\r';
  return {start, end - start - (hasReturn ? 1 : 0)};
}

std::optional<TextSpan> LineAfter(std::string_view text, TextSpan line) {
  const std::size_t end = text.find('\n', line.Start);
  if (end == std::string_view::npos) return std::nullopt;
  return LineAround(text, end + 1);
}

std::optional<TextSpan> LineBefore(std::string_view text, TextSpan line) {
  if (line.Start == 0) return std::nullopt;
  return LineAround(text, line.Start - 1);
}

std::size_t NextCharacter(std::string_view text, std::size_t at) {
  std::size_t next = at + (text.substr(std::min(at, text.size())).starts_with(LineEnd) ? 2 : 1);
  while (next < text.size() && IsInsideCharacter(text[next])) ++next;
  return next < text.size() ? next : at;
}

std::size_t PreviousCharacter(std::string_view text, std::size_t at) {
  if (at == 0) return 0;
  if (text.substr(0, at).ends_with(LineEnd)) return at - LineEnd.size();
  std::size_t previous = at - 1;
  while (previous > 0 && IsInsideCharacter(text[previous])) --previous;
  return previous;
}

}  // namespace qves
