#include "dialogs/RichText.h"

#include <algorithm>

#include "dialogs/RichTextReader.h"
#include "text/Characters.h"
#include "text/Text.h"

namespace qves {
namespace {

bool IsRich(std::string_view source) {
  constexpr std::string_view mark = "{\\rtf";
  if (!source.starts_with(mark)) return false;
  return source.size() == mark.size() || !IsLetter(source[mark.size()]);
}

std::string MakePlain(std::string_view source) {
  return MakeReadable(source, "\t\r\n");
}

}  // namespace

RichText ReadPlainText(std::string_view source) {
  std::string text = MakePlain(source);
  for (const std::string_view lineEnd : {"\r\n", "\r", "\u2028", "\u2029"})
    text = ReplaceAll(text, lineEnd, "\n");
  RichTextBuilder document;
  ForEachLine(text, [&](int, std::string_view line) {
    document.Append(line, {}, {});
    document.EndParagraph({});
  });
  return document.Finish();
}

RichText ReadRichText(std::string_view source) {
  source = WithoutByteOrderMark(source);
  const std::size_t start = std::min(source.find_first_not_of(" \t\r\n"), source.size());
  if (IsRich(source.substr(start))) return RichTextReader(source.substr(start)).Read();
  return MakePlain(source) == source ? ReadPlainText(source) : RichText();
}

std::string PlainText(const Paragraph& paragraph) {
  std::string text;
  for (const TextRun& run : paragraph.Runs) text += run.Text;
  return text;
}

std::string PlainText(const RichText& document) {
  std::string text;
  for (const Paragraph& paragraph : document.Paragraphs)
    text += (&paragraph == &document.Paragraphs.front() ? "" : "\n") + PlainText(paragraph);
  return text;
}

}  // namespace qves
