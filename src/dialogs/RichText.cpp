#include "dialogs/RichText.h"

#include <algorithm>

#include "dialogs/RichTextReader.h"
#include "text/Text.h"

namespace qves {
namespace {

std::string MakePlain(std::string_view source) {
  return MakeReadable(source, "\t\r\n");
}

}  // namespace

RichText ReadPlainText(std::string_view source) {
  std::string text = MakePlain(source);
  for (const std::string_view lineEnd : {"\r\n", "\r", "\u2028", "\u2029"})
    text = ReplaceAll(text, lineEnd, "\n");
  RichText document;
  ForEachLine(text, [&](int, std::string_view line) {
    Paragraph& paragraph = document.Paragraphs.emplace_back();
    if (!line.empty()) paragraph.Runs.push_back({std::string(line), {}});
  });
  return document;
}

RichText ReadRichText(std::string_view source) {
  source = WithoutByteOrderMark(source);
  const std::size_t start = std::min(source.find_first_not_of(" \t\r\n"), source.size());
  if (source.substr(start).starts_with("{\\rtf")) return RichTextReader(source.substr(start)).Read();
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
