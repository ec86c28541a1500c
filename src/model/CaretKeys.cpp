#include "model/CaretKeys.h"

#include <algorithm>

#include "text/TextPlaces.h"

namespace qves {
namespace {

constexpr int LinesOfAPage = 10;

bool HasText(std::string_view text, TextSpan line) {
  return text.substr(line.Start, line.Length).find_first_not_of(" \t") != std::string_view::npos;
}

/// The line with text so many further, or the last one on the way.
TextSpan Walk(std::string_view text, TextSpan from, int lines) {
  const auto step = lines < 0 ? LineBefore : LineAfter;
  int left = std::abs(lines);
  for (auto line = step(text, from); line && left > 0; line = step(text, *line)) {
    if (!HasText(text, *line)) continue;
    from = *line;
    --left;
  }
  return from;
}

/// The line itself, or the nearest one that has text.
TextSpan NearestWithText(std::string_view text, TextSpan line) {
  for (const int step : {-1, 1})
    if (!HasText(text, line)) line = Walk(text, line, step);
  return line;
}

CaretMove ToLine(std::string_view text, TextSpan line) {
  line = NearestWithText(text, line);
  if (!HasText(text, line)) return {line.Start, "\r", true};
  return {line.Start, text.substr(line.Start, line.Length), false};
}

CaretMove ToCharacter(std::string_view text, std::size_t at) {
  if (at >= text.size() || text[at] == '\n' || text[at] == '\r') return {at, "\r", true};
  const std::size_t next = NextCharacter(text, at);
  return {at, text.substr(at, next == at ? std::string_view::npos : next - at), true};
}

std::size_t LastOf(std::string_view text, TextSpan line) {
  return line.Length == 0 ? line.Start : PreviousCharacter(text, line.Start + line.Length);
}

}  // namespace

std::optional<CaretMove> MoveByKey(std::string_view text, std::size_t caret, const KeyEvent& event) {
  const bool wholeText = event.Shift == ControlBit && (event.Code == KeyHome || event.Code == KeyEnd);
  if (wholeText) return ToLine(text, LineAround(text, event.Code == KeyHome ? 0 : text.size()));
  if (event.Shift != NoShift) return std::nullopt;
  const TextSpan line = LineAround(text, caret);
  switch (event.Code) {
    case KeyUp:
      return ToLine(text, Walk(text, line, -1));
    case KeyDown:
      return ToLine(text, Walk(text, line, 1));
    case KeyPageUp:
      return ToLine(text, Walk(text, line, -LinesOfAPage));
    case KeyPageDown:
      return ToLine(text, Walk(text, line, LinesOfAPage));
    case KeyLeft:
      return ToCharacter(text, PreviousCharacter(text, caret));
    case KeyRight:
      return ToCharacter(text, NextCharacter(text, caret));
    case KeyHome:
      return ToCharacter(text, line.Start);
    case KeyEnd:
      return ToCharacter(text, LastOf(text, line));
    default:
      return std::nullopt;
  }
}

}  // namespace qves
