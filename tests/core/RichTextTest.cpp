#include <gtest/gtest.h>

#include <algorithm>
#include <cstdlib>

#include "dialogs/RichText.h"

namespace qves {
namespace {

std::string Looks(const TextStyle& style) {
  std::string looks;
  if (style.Bold) looks += "b";
  if (style.Italic) looks += "i";
  if (style.Underline) looks += "u";
  if (style.HalfPoints != 24) looks += "s" + std::to_string(style.HalfPoints);
  if (style.Color != -1) looks += "c" + std::to_string(style.Color);
  return looks;
}

// The paragraphs, each ended by a bar: their indents and bullet where there are any, and their runs, before
// each but a plain first one its looks. 720-360* text<b>bold<>plain|
std::string Read(std::string_view source) {
  std::string read;
  for (const Paragraph& paragraph : ReadRichText(source).Paragraphs) {
    if (paragraph.LeftIndent != 0 || paragraph.FirstIndent != 0)
      read += std::to_string(paragraph.LeftIndent) + "," + std::to_string(paragraph.FirstIndent) + " ";
    if (paragraph.Bullet) read += "* ";
    for (const TextRun& run : paragraph.Runs)
      read +=
          (&run == paragraph.Runs.data() && run.Style == TextStyle() ? "" : "<" + Looks(run.Style) + ">") +
          run.Text;
    read += "|";
  }
  return read;
}

struct Row {
  std::string Body;
  std::string Expected;
};

void ExpectBodies(std::initializer_list<Row> rows) {
  for (const Row& row : rows)
    EXPECT_EQ(Read("{\\rtf1\\ansi\\deff0" + row.Body + "}"), row.Expected) << row.Body;
}

TEST(RichText, CharactersAndParagraphs) {
  ExpectBodies({
      {"", ""},
      {" a\\par b\\par", "a|b|"},
      {" a\\par\\par b", "a||b|"},
      {" a\\\nb\\\r\nc\r\nd", "a|b|cd|"},
      {" a\\line b\\sect\\page c", "a|b|c|"},
      {" a\\tab b\\\tc\td", "a\tb\tc\td|"},
      {" \\\\ \\{ \\}", "\\ { }|"},
      {" a\\~b\\_c\\-d\\emdash e\\bullet f", "a\u00A0b\u2011c\u00ADd\u2014e\u2022f|"},
      {" a\\unknown b\\unknown-7 c\\: d", "abc d|"},
      {"\\trowd a\\cell b\\cell\\row c", "a\tb\t|c|"},
      {" a{\\v hidden}b", "ab|"},
      {" a\x01\x7F\\u7?\\u133?b", "ab|"},
      {" a\\u8232?b\\u8233?c", "a|b|c|"},
  });
}

TEST(RichText, BytesAreOfTheCodePage) {
  ExpectBodies({
      {"\\ansicpg1252 \\'93\\'e9\\'FF\\'80", "\u201C\u00E9\u00FF\u20AC|"},
      {"\\ansicpg1250 \\'9a\\'b3\\'f8", "\u0161\u0142\u0159|"},
      {"\\pc \\'82\\'e1\\'fd", "\u00E9\u00DF\u00B2|"},
      {"\\pca \\'82\\'d5\\'fd", "\u00E9\u0131\u00B2|"},
      {"\\mac \\'8e\\'d2\\'ff", "\u00E9\u201C\u02C7|"},
      {"\\ansicpg99999 \\'e9", "\u00E9|"},
      {"\\ansicpg932 \\'82\\'b1", "\uFFFD\uFF71|"},
      {"\\ansicpg1252 \\'41\\'00\\'0a\\'81", "A\uFFFD|"},
      {" caf\xE9 \xA9", "caf\u00E9 \u00A9|"},
      {" caf\xC3\xA9 \xF0\x9F\x98\x80", "caf\u00E9 \U0001F600|"},
      {"\\ansicpg1251 \xCF\xB8\xF2\xF0\\'ff", "\u041F\u0451\u0442\u0440\u044F|"},
      {" \\'zz\\'-4\\'4", "zz-44|"},
  });
}

TEST(RichText, UnicodeCharactersAndTheirReplacements) {
  ExpectBodies({
      {"\\u233?a\\u233 ?a\\u233\\'e9a", "\u00E9a\u00E9a\u00E9a|"},
      {"\\u8217\\rquote a", "\u2019a|"},
      {"\\u233\xC3\xA9 a", "\u00E9 a|"},
      {"\\u233\\par a", "\u00E9|a|"},
      {"\\uc0\\u233 a", "\u00E9a|"},
      {"{\\uc2\\u233 ?\\'3f}\\u233?a", "\u00E9\u00E9a|"},
      {"{\\uc9\\u233 ?}a", "\u00E9a|"},
      {"\\u-3913?a", "\uF0B7a|"},
      {"\\u55357?\\u56832?\\u-10179\\'3f\\u-8704\\'3fa", "\U0001F600\U0001F600a|"},
      {"\\u55357?a\\u233?\\u56832?b", "a\u00E9b|"},
      {"\\u99999999999?a\\u-99999?b\\u ?c", "abc|"},
  });
}

TEST(RichText, LooksOfText) {
  const std::string colors = "{\\colortbl;\\red255\\green0\\blue0;\\red1\\green2\\blue999;;}";
  ExpectBodies({
      {" a\\b b\\i c\\b0\\ul d\\i0\\ulnone e", "a<b>b<bi>c<iu>d<>e|"},
      {" {\\b a}b{\\ulw c{\\ul0 d}}", "<b>a<>b<u>c<>d|"},
      {"\\b\\i\\fs48 a\\plain b", "<bis48>a<>b|"},
      {"\\b {}{\\i}a\\b0\\b b", "<b>ab|"},
      {"\\fs20 a\\fs b\\fs0 c\\fs-4 d\\fs99999 e", "<s20>a<>b<s8>cd<s3276>e|"},
      {colors + "\\cf1 a\\cf2 b\\cf3 c\\cf99 d\\cf-1 e", "<c16711680>a<c66303>b<>cde|"},
  });
}

TEST(RichText, IndentsBulletsAndNumbers) {
  const std::string bullet =
      "{\\pntext\\f0\\'b7\\tab}{\\*\\pn\\pnlvlblt\\pnf0{\\pntxtb\\'b7}}\\li720\\fi-360";
  ExpectBodies({
      {"\\li720\\fi-360 a\\par b\\par\\pard c", "720,-360 a|720,-360 b|c|"},
      {bullet + " a\\par b\\par\\pard c", "720,-360 * a|720,-360 b|c|"},
      {bullet + " a\\line b\\par c", "720,-360 * a|720,0 b|720,-360 c|"},
      {"{\\listtext\\pard\\plain\\f3 \\u8226\\'95\\tab}a", "* a|"},
      {"{\\listtext\\f3{o}\\tab}a\\par{\\listtext\\b IV)}b\\par{\\listtext 7}c", "* a|<b>IV)<>b|7c|"},
      {"{\\pntext}a{\\pntext -}b", "a-b|"},
      {"\\li99999999\\fi-99999999 a", "31680,-31680 a|"},
      {"{\\li300 a}\\par{\\li300 b\\par}c", "a|300,0 b|c|"},
  });
}

TEST(RichText, DestinationsAreSkipped) {
  for (const std::string each :
       {"{\\fonttbl{\\f0\\fswiss Arial;}{\\f1 Symbol;}}", "{\\stylesheet{\\s1 heading {\\*\\additive} 1;}}",
        "{\\info{\\title x}{\\author y}}", "{\\pict\\bin4 }{\\b}", "{\\*\\shppict{\\pict\\bin3 \\}}}}",
        "{\\header x\\par}{\\footerf y}{\\footnote z}", "{\\object{\\*\\objdata 00}{\\result x}}",
        "{\\*\n\\unknown x{\\b y}{\\pntext z}}", "{\\*\\pn\\pnlvlblt x{\\pntxtb y}{\\pntxta z}}", "{\\xe x}"})
    ExpectBodies({{" a" + each + "b", "ab|"}});
  ExpectBodies({{"{\\field{\\*\\fldinst HYPERLINK x}{\\fldrslt here}}{\\field{\\fldinst PAGE}{\\fldrslt 1}}",
                 "here1|"}});
}

TEST(RichText, BrokenAndOtherTextsGiveWhatIsReadable) {
  const Row rows[] = {
      {"", ""},
      {"{\\rtf", ""},
      {"{\\rtf1 a\\par b\\", "a|b|"},
      {"{\\rtf1 a\\'e", "ae|"},
      {"{\\rtf1 a{\\b b", "a<b>b|"},
      {"{\\rtf1 a{\\fonttbl x", "a|"},
      {"{\\rtf1 a\\bin999999999 bc}", "a|"},
      {"{\\rtf1 a\\bin-5 b\\bin c}", "abc|"},
      {"{\\rtf1 a}b}{\\rtf1 c}", "a|"},
      {"{\\rtf1\\pict a\\*\\unknown b}", "ab|"},
      {"\xEF\xBB\xBF\r\n {\\rtf1 a}", "a|"},
      {std::string("{\\rtf1 a\0b\\\0c}", 14), "abc|"},
      {"a\tb\n\nc\n", "a\tb||c|"},
      {"a\r\nb\rc\u2028d", "a|b|c|d|"},
      {"\xEF\xBB\xBFplain caf\u00E9 {\\b}", "plain caf\u00E9 {\\b}|"},
      {"caf\xE9", ""},
      {"a\u0085b", ""},
      {std::string("PK\3\4\0\0", 6), ""},
  };
  for (const Row& row : rows) EXPECT_EQ(Read(row.Body), row.Expected) << row.Body;
}

std::string Repeated(const std::string& part, std::size_t size) {
  std::string text = "{\\rtf1 ";
  while (text.size() < size) text += part;
  return text;
}

TEST(RichText, DeepGroupsAreReadAsOne) {
  const std::string opened = Repeated("{\\b a", 5'007);
  EXPECT_EQ(Read(opened), "<b>" + std::string(1'000, 'a') + "|");
  EXPECT_EQ(Read(opened + std::string(1'000, '}') + "end}"), "<b>" + std::string(1'000, 'a') + "<>end|");
}

/// Five megabytes, less where a sanitizer makes everything slow.
std::size_t LargeSize() {
  const char* slowness = std::getenv("QVES_SLOWNESS");
  return 5'000'000U / std::size_t(slowness ? std::max(std::atoi(slowness), 1) : 1);
}

// What takes long for each piece, or longer with each, does not end in the time of a test.
TEST(RichText, LargeTextsEnd) {
  for (const char* part :
       {"{", "{\\b", "\\par", "\\b a\\b0 b", "\\'e9", "\\u233?", "a{\\pntext\\b b}", "{\\pict 00}",
        "\\uc99\\u9{", "{\\colortbl;", "\\longword", "\xE9", "\\ansicpg1\\'e9"}) {
    std::size_t pieces = 0;
    for (const Paragraph& each : ReadRichText(Repeated(part, LargeSize())).Paragraphs)
      pieces += 1 + each.Runs.size();
    EXPECT_LE(pieces, LargeSize()) << part;
  }
}

}  // namespace
}  // namespace qves
