// Writes one JSON object on one line. Plain texts are appended as they are, which keeps script mode quick;
// everything that needs more care is left to the JSON library.
#pragma once

#include <nlohmann/json.hpp>
#include <string>
#include <string_view>

namespace qves {

class JsonLine {
 public:
  void Begin(char bracket);
  void End(char bracket);
  /// The name of the next value of an object.
  void Name(std::string_view name);
  void Value(std::string_view text);
  void Value(int number);
  void Value(const nlohmann::ordered_json& value);

  template <class Item>
  void Field(std::string_view name, const Item& value) {
    Name(name);
    Value(value);
  }

  const std::string& Text() const { return Line; }
  void Clear() { Line.clear(); }

 private:
  void Separate();
  void Quote(std::string_view text, std::string_view close);
  std::string Line;
};

}  // namespace qves
