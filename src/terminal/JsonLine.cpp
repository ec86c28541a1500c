#include "terminal/JsonLine.h"

#include <algorithm>

namespace qves {
namespace {

using Json = nlohmann::ordered_json;

bool IsPlain(std::string_view text) {
  return std::all_of(text.begin(), text.end(),
                     [](char c) { return c >= ' ' && c < 127 && c != '"' && c != '\\'; });
}

std::string Dump(const Json& value) {
  return value.dump(-1, ' ', false, Json::error_handler_t::replace);
}

}  // namespace

void JsonLine::Separate() {
  if (!Line.empty() && Line.back() != '[' && Line.back() != '{' && Line.back() != ':') Line += ',';
}

void JsonLine::Begin(char bracket) {
  Separate();
  Line += bracket;
}

void JsonLine::End(char bracket) {
  Line += bracket;
}

void JsonLine::Name(std::string_view name) {
  Separate();
  Line.append("\"").append(name).append("\":");
}

void JsonLine::Value(std::string_view text) {
  Separate();
  if (IsPlain(text))
    Line.append("\"").append(text).append("\"");
  else
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
