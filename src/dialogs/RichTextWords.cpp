// The control words and symbols that mean something here; every other one is passed over.
#include <algorithm>

#include "dialogs/RichTextReader.h"

namespace qves {
namespace {

int Indent(std::optional<int> number) {
  constexpr int widest = 31'680;  // twips: 22 inches
  return std::clamp(number.value_or(0), -widest, widest);
}

int FontSize(std::optional<int> number) {
  constexpr int smallest = 8;
  constexpr int largest = 3'276;
  return std::clamp(number.value_or(TextStyle().HalfPoints), smallest, largest);
}

constexpr std::string_view Skipped[] = {
    "filetbl",  "fldinst", "fonttbl",    "footer",  "footerf", "footerl", "footerr",
    "footnote", "header",  "headerf",    "headerl", "headerr", "info",    "listoverridetable",
    "object",   "pict",    "stylesheet", "tc",      "xe"};
constexpr std::string_view Underlines[] = {"ul", "uld", "uldash", "uldb", "ulw", "ulwave"};

}  // namespace

const std::unordered_map<std::string_view, RichTextReader::Meaning>& RichTextReader::Words() {
  using Reader = RichTextReader;
  constexpr Action skip = [](Reader& r, Number) { r.Enter(Destination::Skipped); };
  constexpr Action label = [](Reader& r, Number) { r.Enter(Destination::Label); };
  constexpr Action endParagraph = [](Reader& r, Number) { r.EndParagraph(); };
  constexpr Action breakParagraph = [](Reader& r, Number) {
    if (!r.Current.Runs.empty()) r.EndParagraph();
  };
  constexpr Action underline = [](Reader& r, Number n) { r.Here().Style.Underline = n != 0; };
  static const auto words = [&] {
    std::unordered_map<std::string_view, Meaning> all = {
        {"\\", U'\\'},
        {"{", U'{'},
        {"}", U'}'},
        {"\t", U'\t'},
        {"~", U'\u00A0'},
        {"-", U'\u00AD'},
        {"_", U'\u2011'},
        {"bullet", U'\u2022'},
        {"cell", U'\t'},
        {"emdash", U'\u2014'},
        {"emspace", U'\u2003'},
        {"endash", U'\u2013'},
        {"enspace", U'\u2002'},
        {"ldblquote", U'\u201C'},
        {"lquote", U'\u2018'},
        {"rdblquote", U'\u201D'},
        {"rquote", U'\u2019'},
        {"tab", U'\t'},

        {"*", skip},  // what is marked so is nothing that a reader has to know

        {"\n", endParagraph},
        {"\r", endParagraph},
        {"par", endParagraph},
        {"page", breakParagraph},
        {"row", breakParagraph},
        {"sect", breakParagraph},
        {"line", [](Reader& r, Number) { r.EndLine(); }},
        {"pard", [](Reader& r, Number) { r.Here().LeftIndent = r.Here().FirstIndent = 0; }},
        {"li", [](Reader& r, Number n) { r.Here().LeftIndent = Indent(n); }},
        {"fi", [](Reader& r, Number n) { r.Here().FirstIndent = Indent(n); }},
        {"listtext", label},
        {"pntext", label},

        {"plain",
         [](Reader& r, Number) {
           r.Here().Style = {};
           r.Here().Hidden = false;
         }},
        {"b", [](Reader& r, Number n) { r.Here().Style.Bold = n != 0; }},
        {"i", [](Reader& r, Number n) { r.Here().Style.Italic = n != 0; }},
        {"ulnone", [](Reader& r, Number) { r.Here().Style.Underline = false; }},
        {"v", [](Reader& r, Number n) { r.Here().Hidden = n != 0; }},
        {"fs", [](Reader& r, Number n) { r.Here().Style.HalfPoints = FontSize(n); }},
        {"cf", [](Reader& r, Number n) { r.SetColor(n.value_or(0)); }},
        {"colortbl", [](Reader& r, Number) { r.Enter(Destination::Colors); }},
        {"red", [](Reader& r, Number n) { r.SetColorPart(16, n.value_or(0)); }},
        {"green", [](Reader& r, Number n) { r.SetColorPart(8, n.value_or(0)); }},
        {"blue", [](Reader& r, Number n) { r.SetColorPart(0, n.value_or(0)); }},

        {"ansicpg", [](Reader& r, Number n) { r.CodePage = "CP" + std::to_string(n.value_or(1252)); }},
        {"mac", [](Reader& r, Number) { r.CodePage = "MACINTOSH"; }},
        {"pc", [](Reader& r, Number) { r.CodePage = "CP437"; }},
        {"pca", [](Reader& r, Number) { r.CodePage = "CP850"; }},
        {"u", [](Reader& r, Number n) { r.PutUnicode(n.value_or(0)); }},
        {"uc", [](Reader& r, Number n) { r.Here().FallbackLength = std::clamp(n.value_or(1), 0, 16); }},
        {"bin", [](Reader& r, Number n) { r.SkipBytes(n.value_or(0)); }},
    };
    for (const std::string_view word : Skipped) all[word] = skip;
    for (const std::string_view word : Underlines) all[word] = underline;
    return all;
  }();
  return words;
}

}  // namespace qves
