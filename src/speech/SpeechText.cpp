#include "speech/SpeechText.h"

#include <algorithm>

#include "text/Utf8.h"

namespace qves {
namespace {

bool BeginsSentence(std::string_view text, std::size_t offset) {
  const std::size_t last = text.find_last_not_of(" \t", offset == 0 ? 0 : offset - 1);
  if (offset == 0 || last == std::string_view::npos) return true;
  return std::string_view(".!?:;\n").find(text[last]) != std::string_view::npos;
}

// Where to end a piece that begins at `from` and may not pass `limit`.
std::size_t CutBefore(std::string_view text, std::size_t from, std::size_t limit) {
  for (const std::string_view ends : {"\n", ".!?", " \t"}) {
    const std::size_t at = text.find_last_of(ends, limit - 1);
    if (at != std::string_view::npos && at > from) return at + 1;
  }
  while (limit > from + 1 && IsInsideCharacter(text[limit])) --limit;
  return limit;
}

// Gives each mark to the piece that it lies in. `starts` are the pieces' offsets.
void DealMarks(std::vector<TextPiece>& pieces, const std::vector<std::size_t>& starts,
               std::span<const BookMark> marks) {
  std::size_t piece = 0;
  for (const BookMark& mark : marks) {
    while (piece + 1 < pieces.size() && starts[piece + 1] <= mark.Offset) ++piece;
    const bool begins = mark.Offset <= starts[piece];
    (begins ? pieces[piece].FirstMarks : pieces[piece].LaterMarks).push_back(mark.Number);
  }
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

std::vector<TextPiece> CutText(std::string_view text, std::span<const BookMark> marks, std::size_t longest) {
  std::vector<std::size_t> ends;
  for (const BookMark& mark : marks) {
    if (mark.Offset < text.size() && !IsInsideCharacter(text[mark.Offset]) &&
        BeginsSentence(text, mark.Offset))
      ends.push_back(mark.Offset);
  }
  ends.push_back(text.size());
  std::vector<TextPiece> pieces;
  std::vector<std::size_t> starts;
  std::size_t from = 0;
  for (const std::size_t end : ends) {
    while (from < end) {
      const std::size_t to = end - from > longest ? CutBefore(text, from, from + longest) : end;
      pieces.push_back({std::string(text.substr(from, to - from)), {}, {}});
      starts.push_back(from);
      from = to;
    }
  }
  if (!pieces.empty()) DealMarks(pieces, starts, marks);
  return pieces;
}

}  // namespace qves
