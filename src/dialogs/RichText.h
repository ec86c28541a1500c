// A rich text (RTF) as paragraphs of runs: what a dialog shows and reads aloud.
#pragma once

#include <string>
#include <string_view>

#include "model/RichText.h"

namespace qves {

/// Never fails: what it does not know it skips, and of a broken text it gives what was readable. A text that
/// is no rich text at all is taken as plain text, a paragraph to a line, when it is valid UTF-8 without
/// control characters; else the document is empty. A line break inside a paragraph begins a new one that goes
/// on at the left indent, without a bullet.
RichText ReadRichText(std::string_view source);

/// A plain text, a paragraph to a line (ended by LF, CR, both, or a separator of Unicode). A "?" stands for
/// each control character and each byte that is no valid UTF-8.
RichText ReadPlainText(std::string_view source);

/// The text of a paragraph, or of a document with a line for each, without its looks.
std::string PlainText(const Paragraph& paragraph);
std::string PlainText(const RichText& document);

}  // namespace qves
