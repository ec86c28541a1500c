#include "terminal/JsonLine.h"

#include <algorithm>

namespace qves {
namespace {

using Json = nlohmann::ordered_json;

/// Without an early end, so that the compiler looks at many characters at once.
bool IsPlain(std::string_view text) {
  bool plain = true;
  for (const char c : text) plain &= (c >= ' ') & (c < 127) & (c != '"') & (c != '\\');
  return plain;
}

std::string Dump(const Json& value) {
  return value.dump(-1, ' ', false, Json::error_handler_t::replace);
}

}  // namespace

void JsonLine::Separate() {
  if (!Line.empty() && Line.back() != '[' && Line.back() != '{' && Line.back() != ':') Line += ',';
}

/// A comma where one is due, a quote, the text and what closes it.
void JsonLine::Quote(std::string_view text, std::string_view close) {
  const char last = Line.empty() ? '[' : Line.back();
  const std::string_view open = last == '[' || last == '{' || last == ':' ? "\"" : ",\"";
  const std::size_t at = Line.size();
  Line.resize(at + open.size() + text.size() + close.size());
  char* to = std::copy(open.begin(), open.end(), Line.data() + at);
  to = std::copy(text.begin(), text.end(), to);
  std::copy(close.begin(), close.end(), to);
}

void JsonLine::Begin(char bracket) {
  Separate();
  Line += bracket;
}

void JsonLine::End(char bracket) {
  Line += bracket;
}

void JsonLine::Name(std::string_view name) {
  Quote(name, "\":");
}

void JsonLine::Value(std::string_view text) {
  if (IsPlain(text)) return Quote(text, "\"");
  Separate();
  Line += Dump(text);
}

void JsonLine::Value(int number) {
  Separate();
  Line += std::to_string(number);
}

void JsonLine::Value(const Json& value) {
  Separate();
  Line += Dump(value);
}

}  // namespace qves
