#include "text/Text.h"

#include <algorithm>

#include "text/Utf8.h"

namespace qves {

void ForEachLine(std::string_view text, const std::function<void(int, std::string_view)>& visit) {
  text = WithoutByteOrderMark(text);
  for (int number = 1; !text.empty(); ++number) {
    const std::size_t end = std::min(text.find('\n'), text.size());
    std::string_view line = text.substr(0, end);
    if (line.ends_with('\r')) line.remove_suffix(1);
    visit(number, line);
    text.remove_prefix(std::min(end + 1, text.size()));
  }
}

std::string_view WithoutByteOrderMark(std::string_view text) {
  constexpr std::string_view mark = "\uFEFF";
  return text.substr(text.starts_with(mark) ? mark.size() : 0);
}

std::string_view Trimmed(std::string_view text, std::string_view characters) {
  const std::size_t first = std::min(text.find_first_not_of(characters), text.size());
  return text.substr(first, text.find_last_not_of(characters) + 1 - first);
}

std::string ReplaceAll(std::string_view text, std::string_view from, std::string_view to) {
  std::string out;
  for (std::size_t at; (at = text.find(from)) != std::string_view::npos; text.remove_prefix(at + from.size()))
    out.append(text.substr(0, at)).append(to);
  return out.append(text);
}

std::string Lower(std::string_view text) {
  std::string lower(text);
  for (char& c : lower)
    if (c >= 'A' && c <= 'Z') c = static_cast<char>(c - 'A' + 'a');
  return lower;
}

std::string Upper(std::string_view text) {
  std::string upper(text);
  for (char& c : upper)
    if (c >= 'a' && c <= 'z') c = static_cast<char>(c - 'a' + 'A');
  return upper;
}

std::string MakeReadable(std::string_view bytes, std::string_view keptControls) {
  std::string out;
  while (!bytes.empty()) {
    const auto [code, length] = FirstCharacter(bytes);
    const bool keep =
        length > 0 && (!IsControl(code) || keptControls.find(bytes[0]) != std::string_view::npos);
    keep ? out.append(bytes.substr(0, length)) : out.append(1, '?');
    bytes.remove_prefix(std::max<std::size_t>(length, 1));
  }
  return out;
}

bool ContainsIgnoringCase(std::string_view text, std::string_view part) {
  return Lower(text).find(Lower(part)) != std::string::npos;
}

}  // namespace qves
