// What a view tells of itself: sentences, as they are spoken and as they are shown.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "services/Speech.h"

namespace qves {

/// What stands in a sentence for a "%%".
struct ToldValue {
  ToldValue(std::string text) : Spoken(text), Shown(std::move(text)) {}
  ToldValue(std::string spoken, std::string shown) : Spoken(std::move(spoken)), Shown(std::move(shown)) {}

  std::string Spoken;
  std::string Shown;
};

class Telling {
 public:
  /// `values` is what the numbers of it are where a sentence says nothing else of them.
  explicit Telling(const SpeechService& speech, ValueSpan values = {}) : Speech(speech), Value(values) {}

  /// The number of that text.
  ToldValue Number(const std::string& text) const { return {Speech.SpeechFormatNumber(text), text}; }
  /// Adds a sentence, with a period where it has none. Its first value is of that kind; there is only one
  /// kind besides plain numbers in a telling.
  void Add(std::string_view sentence, const std::vector<ToldValue>& values = {},
           ValueKind kind = ValueKind::Number);

  /// What is spoken, with the place from the first value of such a kind to the end of the last.
  Wording Spoken() const { return {SpokenText, Value}; }
  const std::string& Shown() const { return ShownText; }

 private:
  const SpeechService& Speech;
  std::string SpokenText;
  std::string ShownText;
  ValueSpan Value;
};

}  // namespace qves
