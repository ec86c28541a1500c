#include "services/SpeechTurn.h"

namespace qves {
namespace {
constexpr std::size_t ShortestPiece = 8192;  // bytes
}

MarkedText PiecewiseReading::Next() {
  std::size_t end = NextMark;
  while (end < Marks.size() && Marks[end].Offset < Start + ShortestPiece) ++end;
  const bool isLast = end == Marks.size() || Marks[end].Offset >= Text.size();
  if (isLast) end = Marks.size();
  const std::size_t stop = isLast ? Text.size() : Marks[end].Offset;
  MarkedText piece{Text.substr(Start, stop - Start), {}};
  if (NextMark < end) Newest = Marks[NextMark].Number;
  for (; NextMark < end; ++NextMark)
    piece.Marks.push_back({Marks[NextMark].Offset - Start, Marks[NextMark].Number});
  Start = stop;
  return piece;
}

}  // namespace qves
