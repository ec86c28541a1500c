// The settings files' format: fields separated by commas or line ends, texts in double quotes.
#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace qves {

class FieldReader {
 public:
  explicit FieldReader(std::string_view text);

  /// The next field without its quotes, an unquoted one without blanks around it; nothing at the end of the
  /// text.
  std::optional<std::string> Next();
  /// The line of the field read last, from 1.
  int Line() const { return FieldLine; }
  /// True when the text ended inside a quoted field.
  bool CutOff() const { return EndedInQuotes; }

 private:
  void Skip(std::string_view characters);
  std::string Quoted();
  std::string Unquoted();

  std::string_view Rest;
  int CurrentLine = 1;
  int FieldLine = 1;
  bool EndedInQuotes = false;
};

/// The text as a quoted field.
std::string Quote(std::string_view text);

}  // namespace qves
