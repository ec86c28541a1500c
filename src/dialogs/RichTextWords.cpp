// The control words that mean something here; every other word is passed over.
#include <algorithm>
#include <array>

#include "dialogs/RichTextReader.h"

namespace qves {
namespace {

int Indent(const RichToken& token) {
  constexpr int widest = 31'680;  // twips: 22 inches
  return std::clamp(token.Or(0), -widest, widest);
}

int FontSize(const RichToken& token) {
  constexpr int largest = 3'276;
  const int size = token.Or(0);
  return size > 0 ? std::min(size, largest) : TextStyle().HalfPoints;
}

int FallbackLength(const RichToken& token) {
  constexpr int longest = 16;
  return std::clamp(token.Or(1), 0, longest);
}

}  // namespace

const RichTextReader::Meaning* RichTextReader::Find(std::string_view word) {
  using Reader = RichTextReader;
  using Token = const RichToken&;
  using enum Destination;
  struct Row {
    std::string_view Word;
    Meaning Means;
  };
  static constexpr auto rows = std::to_array<Row>({
      {"-", U'\u00AD'},
      {"_", U'\u2011'},
      {"aftncn", Skipped},
      {"aftnsep", Skipped},
      {"aftnsepc", Skipped},
      {"annotation", Skipped},
      {"ansi", [](Reader& r, Token) { r.CodePage = 1252; }},
      {"ansicpg", [](Reader& r, Token t) { r.CodePage = t.Or(1252); }},
      {"b", [](Reader& r, Token t) { r.Here().Style.Bold = t.On(); }},
      {"blue", [](Reader& r, Token t) { r.SetColorPart(0, t.Or(0)); }},
      {"bullet", U'\u2022'},
      {"cell", [](Reader& r, Token) { r.Put('\t'); }},
      {"cf", [](Reader& r, Token t) { r.SetColor(t.Or(0)); }},
      {"colortbl", Colors},
      {"column", [](Reader& r, Token) { r.BreakParagraph(); }},
      {"emdash", U'\u2014'},
      {"emspace", U'\u2003'},
      {"endash", U'\u2013'},
      {"enspace", U'\u2002'},
      {"fi", [](Reader& r, Token t) { r.Here().Looks.FirstIndent = Indent(t); }},
      {"filetbl", Skipped},
      {"fldinst", Skipped},
      {"fonttbl", Skipped},
      {"footer", Skipped},
      {"footerf", Skipped},
      {"footerl", Skipped},
      {"footerr", Skipped},
      {"footnote", Skipped},
      {"fs", [](Reader& r, Token t) { r.Here().Style.HalfPoints = FontSize(t); }},
      {"ftncn", Skipped},
      {"ftnsep", Skipped},
      {"ftnsepc", Skipped},
      {"generator", Skipped},
      {"green", [](Reader& r, Token t) { r.SetColorPart(8, t.Or(0)); }},
      {"header", Skipped},
      {"headerf", Skipped},
      {"headerl", Skipped},
      {"headerr", Skipped},
      {"i", [](Reader& r, Token t) { r.Here().Style.Italic = t.On(); }},
      {"info", Skipped},
      {"ldblquote", U'\u201C'},
      {"li", [](Reader& r, Token t) { r.Here().Looks.LeftIndent = Indent(t); }},
      {"line", [](Reader& r, Token) { r.EndLine(); }},
      {"listoverridetable", Skipped},
      {"listtable", Skipped},
      {"listtext", Label},
      {"lquote", U'\u2018'},
      {"ltrmark", U'\u200E'},
      {"mac", [](Reader& r, Token) { r.CodePage = 10000; }},
      {"nestcell", [](Reader& r, Token) { r.Put('\t'); }},
      {"nestrow", [](Reader& r, Token) { r.BreakParagraph(); }},
      {"nonshppict", Skipped},
      {"object", Skipped},
      {"page", [](Reader& r, Token) { r.BreakParagraph(); }},
      {"par", [](Reader& r, Token) { r.EndParagraph(); }},
      {"pard", [](Reader& r, Token) { r.Here().Looks = {}; }},
      {"pc", [](Reader& r, Token) { r.CodePage = 437; }},
      {"pca", [](Reader& r, Token) { r.CodePage = 850; }},
      {"pict", Skipped},
      {"plain", [](Reader& r, Token) { r.SetPlain(); }},
      {"pn", Numbering},
      {"pnlvlblt", [](Reader& r, Token) { r.Here().Looks.Bullet |= r.Here().To == Numbering; }},
      {"pntext", Label},
      {"pntxta", Skipped},
      {"pntxtb", Skipped},
      {"private", Skipped},
      {"qmspace", U'\u2005'},
      {"rdblquote", U'\u201D'},
      {"red", [](Reader& r, Token t) { r.SetColorPart(16, t.Or(0)); }},
      {"revtbl", Skipped},
      {"row", [](Reader& r, Token) { r.BreakParagraph(); }},
      {"rquote", U'\u2019'},
      {"rsidtbl", Skipped},
      {"rtlmark", U'\u200F'},
      {"rxe", Skipped},
      {"sect", [](Reader& r, Token) { r.BreakParagraph(); }},
      {"stylesheet", Skipped},
      {"tab", [](Reader& r, Token) { r.Put('\t'); }},
      {"tc", Skipped},
      {"template", Skipped},
      {"txe", Skipped},
      {"u", [](Reader& r, Token t) { r.PutUnicode(t.Number); }},
      {"uc", [](Reader& r, Token t) { r.Here().FallbackLength = FallbackLength(t); }},
      {"ul", [](Reader& r, Token t) { r.Here().Style.Underline = t.On(); }},
      {"uld", [](Reader& r, Token t) { r.Here().Style.Underline = t.On(); }},
      {"uldash", [](Reader& r, Token t) { r.Here().Style.Underline = t.On(); }},
      {"uldb", [](Reader& r, Token t) { r.Here().Style.Underline = t.On(); }},
      {"ulnone", [](Reader& r, Token) { r.Here().Style.Underline = false; }},
      {"ulth", [](Reader& r, Token t) { r.Here().Style.Underline = t.On(); }},
      {"ulw", [](Reader& r, Token t) { r.Here().Style.Underline = t.On(); }},
      {"ulwave", [](Reader& r, Token t) { r.Here().Style.Underline = t.On(); }},
      {"v", [](Reader& r, Token t) { r.Here().Hidden = t.On(); }},
      {"xe", Skipped},
      {"zwj", U'\u200D'},
      {"zwnj", U'\u200C'},
      {"~", U'\u00A0'},
  });
  static_assert(std::ranges::is_sorted(rows, {}, &Row::Word));
  const auto* const row = std::ranges::lower_bound(rows, word, {}, &Row::Word);
  return row != rows.end() && row->Word == word ? &row->Means : nullptr;
}

}  // namespace qves
