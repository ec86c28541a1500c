#include "dialogs/RichTextBuilder.h"

#include <utility>

namespace qves {

void RichTextBuilder::Append(std::string_view text, const TextStyle& style, const ParagraphLooks& looks) {
  if (text.empty()) return;
  Apply(looks);
  auto& runs = Current.Runs;
  if (runs.empty() || (runs.back().Style != style && TakePiece())) runs.push_back({{}, style});
  runs.back().Text += text;
}

void RichTextBuilder::EndParagraph(const ParagraphLooks& looks) {
  Apply(looks);
  if (!TakePiece()) return Append(" ", {}, looks);
  Document.Paragraphs.push_back(std::exchange(Current, {}));
  Marked = Continued = false;
}

void RichTextBuilder::EndLine(const ParagraphLooks& looks) {
  EndParagraph(looks);
  Continued = true;
}

RichText RichTextBuilder::Finish() {
  if (InParagraph()) Document.Paragraphs.push_back(std::exchange(Current, {}));
  return std::exchange(Document, {});
}

bool RichTextBuilder::TakePiece() {
  if (Pieces == MostPieces) return false;
  ++Pieces;
  return true;
}

void RichTextBuilder::Apply(const ParagraphLooks& looks) {
  Current.LeftIndent = looks.LeftIndent;
  Current.FirstIndent = Continued ? 0 : looks.FirstIndent;
  Current.Bullet = Marked || (looks.Bullet && !Continued);
}

}  // namespace qves
