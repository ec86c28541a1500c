#include "views/Telling.h"

namespace qves {
namespace {

/// Where the sentence begins.
std::size_t Append(std::string& text, const std::string& sentence) {
  if (!text.empty()) text += ' ';
  const std::size_t start = text.size();
  text += sentence;
  if (!sentence.ends_with('.')) text += '.';
  return start;
}

}  // namespace

void Telling::Add(std::string_view sentence, const std::vector<ToldValue>& values, ValueKind kind) {
  std::vector<std::string> spoken, shown;
  for (const ToldValue& value : values) {
    spoken.push_back(value.Spoken);
    shown.push_back(value.Shown);
  }
  Append(ShownText, FillPlaceholders(sentence, shown));
  const std::size_t start =
      Append(SpokenText, FillPlaceholders(sentence, spoken)) + sentence.find(Placeholder);
  if (kind == ValueKind::Number) return;
  if (Value.Length == 0) Value = {start, 0, kind};
  Value.Length = start + spoken.front().size() - Value.Start;
}

}  // namespace qves
