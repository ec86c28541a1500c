#include "dialogs/Sentences.h"

#include <algorithm>

namespace qves {
namespace {

constexpr std::string_view Blanks = " \t\r\n";
constexpr std::string_view Ends = ".?!";
constexpr std::string_view LineEnd = "\r\n";

bool IsInsideCharacter(char byte) {
  return (static_cast<unsigned char>(byte) & 0xC0U) == 0x80U;
}

/// Just behind the sentence that begins there.
std::size_t EndOfSentence(std::string_view text, std::size_t start) {
  for (std::size_t i = start; i < text.size(); ++i) {
    if (text[i] == '\n' || text.substr(i).starts_with(LineEnd)) return i;
    const bool isEnd = Ends.find(text[i]) != std::string_view::npos;
    if (isEnd && (i + 1 == text.size() || Blanks.find(text[i + 1]) != std::string_view::npos)) return i + 1;
  }
  return text.size();
}

}  // namespace

std::vector<TextSpan> FindSentences(std::string_view text) {
  std::vector<TextSpan> sentences;
  for (std::size_t start = 0;;) {
    start = text.find_first_not_of(Blanks, start);
    if (start == std::string_view::npos) return sentences;
    const std::size_t end = EndOfSentence(text, start);
    sentences.push_back({start, end - start});
    start = end;
  }
}

TextSpan LineAround(std::string_view text, std::size_t at) {
  at = std::min(at, text.size());
  const std::size_t before = at == 0 ? std::string_view::npos : text.rfind('\n', at - 1);
  const std::size_t start = before == std::string_view::npos ? 0 : before + 1;
  std::size_t end = std::min(text.find('\n', at), text.size());
  if (end > start && text.substr(end - 1).starts_with(LineEnd)) --end;
  return {start, end - start};
}

std::size_t NextCharacter(std::string_view text, std::size_t at) {
  std::size_t next = at + (text.substr(at).starts_with(LineEnd) ? 2 : 1);
  while (next < text.size() && IsInsideCharacter(text[next])) ++next;
  return next < text.size() ? next : at;
}

std::size_t PreviousCharacter(std::string_view text, std::size_t at) {
  if (at == 0) return 0;
  std::size_t previous = at - 1;
  if (previous > 0 && text.substr(previous - 1).starts_with(LineEnd)) --previous;
  while (previous > 0 && IsInsideCharacter(text[previous])) --previous;
  return previous;
}

}  // namespace qves
