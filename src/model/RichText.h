// A document with looks: paragraphs of runs.
#pragma once

#include <string>
#include <vector>

namespace qves {

/// How a run of text looks.
struct TextStyle {
  bool Bold = false;
  bool Italic = false;
  bool Underline = false;
  int HalfPoints = 24;
  int Color = -1;  ///< 0xRRGGBB; -1: the usual one
  bool operator==(const TextStyle&) const = default;
};

struct TextRun {
  std::string Text;  ///< UTF-8; no line ends and, but for the tab, no control characters
  TextStyle Style;
};

/// One paragraph. A list's bullet is not part of the text, a list's number is.
struct Paragraph {
  std::vector<TextRun> Runs;
  int LeftIndent = 0;   ///< twips
  int FirstIndent = 0;  ///< twips, from the left indent
  bool Bullet = false;
};

struct RichText {
  std::vector<Paragraph> Paragraphs;
};

}  // namespace qves
