#include "services/Text.h"

#include <algorithm>

namespace qves {
namespace {

/// The length of the well-formed UTF-8 sequence at the start of `bytes`; 0 when there is none.
std::size_t SequenceLength(std::string_view bytes) {
  const auto at = [&](std::size_t i) { return static_cast<unsigned char>(bytes[i]); };
  const auto first = at(0);
  if (first < 0x80) return 1;
  const std::size_t length = first >= 0xF0 ? 4 : first >= 0xE0 ? 3 : 2;
  if (first < 0xC2 || first > 0xF4 || bytes.size() < length) return 0;
  for (std::size_t i = 1; i < length; ++i)
    if ((at(i) & 0xC0) != 0x80) return 0;
  const auto second = at(1);
  const bool overlong = (first == 0xE0 && second < 0xA0) || (first == 0xF0 && second < 0x90);
  const bool outside = (first == 0xED && second > 0x9F) || (first == 0xF4 && second > 0x8F);
  return overlong || outside ? 0 : length;
}

bool IsControl(std::string_view character) {
  const auto at = [&](std::size_t i) { return static_cast<unsigned char>(character[i]); };
  if (character.size() == 1) return at(0) < 0x20 || at(0) == 0x7F;
  return at(0) == 0xC2 && at(1) < 0xA0;
}

char Lower(char c) {
  return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c;
}

}  // namespace

bool IsUtf8(std::string_view bytes) {
  while (!bytes.empty()) {
    const std::size_t length = SequenceLength(bytes);
    if (length == 0) return false;
    bytes.remove_prefix(length);
  }
  return true;
}

void ForEachLine(std::string_view text, const std::function<void(int, std::string_view)>& visit) {
  if (text.starts_with("\xEF\xBB\xBF")) text.remove_prefix(3);
  for (int number = 1; !text.empty(); ++number) {
    const std::size_t end = std::min(text.find('\n'), text.size());
    std::string_view line = text.substr(0, end);
    if (line.ends_with('\r')) line.remove_suffix(1);
    visit(number, line);
    text.remove_prefix(std::min(end + 1, text.size()));
  }
}

std::string ReplaceAll(std::string_view text, std::string_view from, std::string_view to) {
  std::string out;
  for (std::size_t at; (at = text.find(from)) != std::string_view::npos; text.remove_prefix(at + from.size()))
    out.append(text.substr(0, at)).append(to);
  return out.append(text);
}

std::string MakeReadable(std::string_view bytes, std::string_view keptControls) {
  std::string out;
  while (!bytes.empty()) {
    const std::size_t length = SequenceLength(bytes);
    const bool keep = length > 0 && (!IsControl(bytes.substr(0, length)) ||
                                     keptControls.find(bytes[0]) != std::string_view::npos);
    keep ? out.append(bytes.substr(0, length)) : out.append(1, '?');
    bytes.remove_prefix(std::max<std::size_t>(length, 1));
  }
  return out;
}

bool ContainsIgnoringCase(std::string_view text, std::string_view part) {
  return std::search(text.begin(), text.end(), part.begin(), part.end(),
                     [](char a, char b) { return Lower(a) == Lower(b); }) != text.end();
}

}  // namespace qves
