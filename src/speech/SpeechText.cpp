#include "speech/SpeechText.h"

#include <algorithm>
#include <iterator>

#include "text/Utf8.h"

namespace qves {
namespace {

bool BeginsSentence(std::string_view text, std::size_t offset) {
  const std::size_t last = text.find_last_not_of(" \t", offset - 1);
  return last == std::string_view::npos ||
         std::string_view(".!?:;\n").find(text[last]) != std::string_view::npos;
}

// Where to end a piece that may not pass `limit`.
std::size_t CutBefore(std::string_view text, std::size_t limit) {
  for (const std::string_view ends : {"\n", ".!?", " \t"}) {
    const std::size_t at = text.find_last_of(ends, limit - 1);
    if (at != std::string_view::npos && at > 0) return at + 1;
  }
  while (limit > 1 && IsInsideCharacter(text[limit])) --limit;
  return limit;
}

std::size_t LengthOfPiece(const MarkedText& text, std::size_t longest) {
  const std::string_view all = text.Text;
  const auto cuts = [all](const BookMark& mark) {
    return mark.Offset > 0 && mark.Offset < all.size() && !IsInsideCharacter(all[mark.Offset]) &&
           BeginsSentence(all, mark.Offset);
  };
  const auto cut = std::find_if(text.Marks.begin(), text.Marks.end(), cuts);
  const std::size_t end = cut == text.Marks.end() ? all.size() : cut->Offset;
  return end > longest ? CutBefore(all, longest) : end;
}

}  // namespace

std::string CleanText(std::string_view text) {
  std::string clean(text);
  for (std::size_t i = 0; i < clean.size();) {
    const auto [code, length] = FirstCharacter(text.substr(i));
    const bool isSpeakable = length > 0 && (!IsControl(code) || code == '\n' || code == '\t');
    if (!isSpeakable) clean[i] = ' ';
    i += isSpeakable ? length : 1;
  }
  return clean;
}

std::vector<BookMark> OrderedMarks(std::span<const BookMark> marks, std::size_t length) {
  std::vector<BookMark> ordered(marks.begin(), marks.end());
  for (BookMark& mark : ordered) mark.Offset = std::min(mark.Offset, length);
  std::stable_sort(ordered.begin(), ordered.end(),
                   [](const BookMark& a, const BookMark& b) { return a.Offset < b.Offset; });
  return ordered;
}

std::vector<std::size_t> CharacterPositions(std::string_view text, std::span<const BookMark> marks) {
  std::vector<std::size_t> positions;
  std::size_t byte = 0;
  std::size_t character = 0;
  for (const BookMark& mark : marks) {
    for (; byte < mark.Offset; ++byte) character += !IsInsideCharacter(text[byte]);
    positions.push_back(character);
  }
  return positions;
}

MarkedText FirstPiece(const MarkedText& text, std::size_t longest) {
  const std::size_t length = LengthOfPiece(text, longest);
  MarkedText piece{text.Text.substr(0, length), {}};
  std::copy_if(text.Marks.begin(), text.Marks.end(), std::back_inserter(piece.Marks),
               [&](const BookMark& mark) { return mark.Offset < length || length == text.Text.size(); });
  return piece;
}

void DropFront(MarkedText& text, std::size_t length) {
  text.Text.erase(0, length);
  std::erase_if(text.Marks, [length](const BookMark& mark) { return mark.Offset < length; });
  for (BookMark& mark : text.Marks) mark.Offset -= length;
}

}  // namespace qves
