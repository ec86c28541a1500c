#include "speech/SpeechText.h"

#include <algorithm>

namespace qves {
namespace {

struct Utf8Row {
  unsigned char Mask;
  unsigned char Lead;
  std::size_t Length;
  std::uint32_t Lowest;  // what is below could have been written shorter
};
constexpr Utf8Row Utf8Rows[] = {
    {0x80, 0x00, 1, 0}, {0xe0, 0xc0, 2, 0x80}, {0xf0, 0xe0, 3, 0x800}, {0xf8, 0xf0, 4, 0x10000}};

bool IsContinuation(char c) {
  return (static_cast<unsigned char>(c) & 0xc0) == 0x80;
}

// The character's code, or nothing of `row`'s form.
std::uint32_t Decode(std::string_view text, const Utf8Row& row) {
  std::uint32_t code = static_cast<unsigned char>(text[0]) & static_cast<unsigned char>(~row.Mask);
  for (std::size_t i = 1; i < row.Length; ++i)
    code = (code << 6) | (static_cast<unsigned char>(text[i]) & 0x3f);
  return code;
}

bool IsSpeakable(std::uint32_t code) {
  const bool control = (code < 0x20 && code != '\n' && code != '\t') || (code >= 0x7f && code < 0xa0);
  const bool surrogate = code >= 0xd800 && code < 0xe000;
  return !control && !surrogate && code <= 0x10ffff;
}

// How many bytes the speakable character at the text's start has; 0 when there is none.
std::size_t CharacterLength(std::string_view text) {
  for (const Utf8Row& row : Utf8Rows) {
    if ((static_cast<unsigned char>(text[0]) & row.Mask) != row.Lead) continue;
    if (text.size() < row.Length) return 0;
    const auto rest = text.substr(1, row.Length - 1);
    if (!std::all_of(rest.begin(), rest.end(), IsContinuation)) return 0;
    const std::uint32_t code = Decode(text, row);
    return code >= row.Lowest && IsSpeakable(code) ? row.Length : 0;
  }
  return 0;
}

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
  while (limit > from + 1 && IsContinuation(text[limit])) --limit;
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
    const std::size_t length = CharacterLength(text.substr(i));
    if (length == 0) clean[i] = ' ';
    i += std::max<std::size_t>(length, 1);
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
    for (; byte < mark.Offset; ++byte) character += !IsContinuation(text[byte]);
    positions.push_back(character);
  }
  return positions;
}

std::vector<TextPiece> CutText(std::string_view text, std::span<const BookMark> marks, std::size_t longest) {
  std::vector<std::size_t> ends;
  for (const BookMark& mark : marks) {
    if (mark.Offset < text.size() && !IsContinuation(text[mark.Offset]) && BeginsSentence(text, mark.Offset))
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
