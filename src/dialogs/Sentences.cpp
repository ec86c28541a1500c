#include "dialogs/Sentences.h"

namespace qves {
namespace {

constexpr std::string_view Blanks = " \t\n";
constexpr std::string_view Ends = ".?!";

/// Just behind the sentence that begins there.
std::size_t EndOfSentence(std::string_view text, std::size_t start) {
  for (std::size_t i = start; i < text.size(); ++i) {
    if (text[i] == '\n') return i;
    const bool isEnd = Ends.find(text[i]) != std::string_view::npos;
    if (isEnd && (i + 1 == text.size() || Blanks.find(text[i + 1]) != std::string_view::npos)) return i + 1;
  }
  return text.size();
}

}  // namespace

std::vector<TextSpan> FindSentences(std::string_view text) {
  std::vector<TextSpan> sentences;
  for (std::size_t start = 0;;) {
    start = text.find_first_not_of(Blanks, start);
    if (start == std::string_view::npos) return sentences;
    const std::size_t end = EndOfSentence(text, start);
    sentences.push_back({start, end - start});
    start = end;
  }
}

}  // namespace qves
