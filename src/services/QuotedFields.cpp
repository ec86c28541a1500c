#include "services/QuotedFields.h"

#include <algorithm>

#include "text/Text.h"

namespace qves {

FieldReader::FieldReader(std::string_view text) : Rest(WithoutByteOrderMark(text)) {}

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
  const std::string_view field = Rest.substr(0, end);
  Rest.remove_prefix(end);
  return std::string(Trimmed(field, " \t\r"));
}

std::string Quote(std::string_view text) {
  return "\"" + std::string(text) + "\"";
}

}  // namespace qves
