#include "services/QuotedFields.h"

#include <algorithm>

namespace qves {

FieldReader::FieldReader(std::string_view text) : Rest(text) {
  if (Rest.starts_with("\xEF\xBB\xBF")) Rest.remove_prefix(3);
}

std::optional<std::string> FieldReader::Next() {
  Skip(" \t\r\n");
  if (Rest.empty()) return std::nullopt;
  FieldLine = CurrentLine;
  std::string field = Rest.front() == '"' ? Quoted() : Unquoted();
  Skip(" \t\r");
  if (Rest.starts_with(',')) Rest.remove_prefix(1);
  return field;
}

void FieldReader::Skip(std::string_view characters) {
  while (!Rest.empty() && characters.find(Rest.front()) != std::string_view::npos) {
    if (Rest.front() == '\n') ++CurrentLine;
    Rest.remove_prefix(1);
  }
}

std::string FieldReader::Quoted() {
  Rest.remove_prefix(1);
  const std::size_t end = Rest.find('"');
  std::string field(Rest.substr(0, end));
  EndedInQuotes = end == std::string_view::npos;
  Rest.remove_prefix(EndedInQuotes ? Rest.size() : end + 1);
  CurrentLine += static_cast<int>(std::count(field.begin(), field.end(), '\n'));
  // Whatever stands between the closing quote and the next separator belongs to no field.
  Rest.remove_prefix(std::min(Rest.find_first_of(",\n"), Rest.size()));
  return field;
}

std::string FieldReader::Unquoted() {
  const std::size_t end = std::min(Rest.find_first_of(",\n"), Rest.size());
  std::string_view field = Rest.substr(0, end);
  Rest.remove_prefix(end);
  const std::size_t last = field.find_last_not_of(" \t\r");
  return std::string(field.substr(0, last == std::string_view::npos ? 0 : last + 1));
}

std::string Quote(std::string_view text) {
  return "\"" + std::string(text) + "\"";
}

}  // namespace qves
