// Puts a rich text together from its pieces.
#pragma once

#include <cstddef>
#include <string_view>

#include "model/RichText.h"

namespace qves {

struct ParagraphLooks {
  int LeftIndent = 0;
  int FirstIndent = 0;
  bool Bullet = false;
};

class RichTextBuilder {
 public:
  void Append(std::string_view text, const TextStyle& style, const ParagraphLooks& looks);
  /// Gives the paragraph at hand a bullet, whatever its looks say.
  void MarkBullet() { Marked = true; }
  void EndParagraph(const ParagraphLooks& looks);
  /// Ends the paragraph as a line break does: what follows goes on at its left indent.
  void EndLine(const ParagraphLooks& looks);
  bool InParagraph() const { return !Current.Runs.empty(); }
  RichText Finish();

 private:
  // Beyond this number of paragraphs and runs together, a document is kept without its divisions.
  static constexpr std::size_t MostPieces = 1'000'000;

  bool TakePiece();
  void Apply(const ParagraphLooks& looks);

  RichText Document;
  Paragraph Current;
  std::size_t Pieces = 0;
  bool Marked = false;
  bool Continued = false;
};

}  // namespace qves
