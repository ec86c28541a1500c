#include <gtest/gtest.h>

#include <algorithm>
#include <cstdlib>

#include "dialogs/RichText.h"

namespace qves {
namespace {

std::string Rich(const std::string& body) {
  return "{\\rtf1\\ansi\\deff0" + body + "}";
}

// The paragraphs' texts, each ended by a bar.
std::string Texts(std::string_view source) {
  std::string texts;
  for (const Paragraph& paragraph : ReadRichText(source).Paragraphs) texts += PlainText(paragraph) + "|";
  return texts;
}

std::string Looks(const TextStyle& style) {
  std::string looks;
  if (style.Bold) looks += "b";
  if (style.Italic) looks += "i";
  if (style.Underline) looks += "u";
  if (style.HalfPoints != 24) looks += "s" + std::to_string(style.HalfPoints);
  if (style.Color != -1) looks += "c" + std::to_string(style.Color);
  return looks;
}

// The runs with their looks: <b>bold<>plain.
std::string Runs(const Paragraph& paragraph) {
  std::string runs;
  for (const TextRun& run : paragraph.Runs) runs += "<" + Looks(run.Style) + ">" + run.Text;
  return runs;
}

// The paragraphs' indents and bullets: 720-360* text|.
std::string Layout(std::string_view source) {
  std::string layout;
  for (const Paragraph& each : ReadRichText(source).Paragraphs)
    layout += std::to_string(each.LeftIndent) + "," + std::to_string(each.FirstIndent) +
              (each.Bullet ? "* " : " ") + PlainText(each) + "|";
  return layout;
}

struct Row {
  std::string Body;
  std::string Read;
};

TEST(RichText, CharactersAndParagraphs) {
  const Row rows[] = {
      {"", ""},
      {" a", "a|"},
      {" a\\par b\\par", "a|b|"},
      {" a\\par\\par b", "a||b|"},
      {" a\\\nb\\\r\nc", "a|b|c|"},
      {" a\r\nb\nc", "abc|"},
      {" a\\line b\\sect\\page c", "a|b|c|"},
      {" a\\tab b\\\tc\td", "a\tb\tc\td|"},
      {" \\\\ \\{ \\}", "\\ { }|"},
      {" a\\~b\\_c\\-d", "a\u00A0b\u2011c\u00ADd|"},
      {" a\\emdash b\\endash  c\\bullet d", "a\u2014b\u2013 c\u2022d|"},
      {" \\lquote a\\rquote \\ldblquote b\\rdblquote", "\u2018a\u2019\u201Cb\u201D|"},
      {" a\\unknown b\\unknown-7 c\\: d", "abc d|"},
      {"\\trowd a\\cell b\\cell\\row c", "a\tb\t|c|"},
      {" a{\\v hidden}b", "ab|"},
      {" a\x01\x7F\\u7?\\u133?b", "ab|"},
      {" a\\u8232?b\\u8233?c", "a|b|c|"},
  };
  for (const Row& row : rows) EXPECT_EQ(Texts(Rich(row.Body)), row.Read) << row.Body;
}

TEST(RichText, BytesAreOfTheCodePage) {
  const Row rows[] = {
      {"\\ansicpg1252 \\'93\\'e9\\'FF\\'80", "\u201C\u00E9\u00FF\u20AC|"},
      {"\\ansicpg1250 \\'9a\\'b3\\'f8", "\u0161\u0142\u0159|"},
      {"\\ansicpg1251 \\'c0\\'ff\\'b8", "\u0410\u044F\u0451|"},
      {"\\pc \\'82\\'e1\\'fd", "\u00E9\u00DF\u00B2|"},
      {"\\pca \\'82\\'d5\\'fd", "\u00E9\u0131\u00B2|"},
      {"\\mac \\'8e\\'d2\\'ff", "\u00E9\u201C\u02C7|"},
      {"\\ansicpg99999 \\'e9", "\u00E9|"},
      {"\\ansicpg1252 \\'41\\'00\\'0a\\'81", "A\uFFFD|"},
      {" caf\xE9 \xA9", "caf\u00E9 \u00A9|"},
      {" caf\xC3\xA9 \xF0\x9F\x98\x80", "caf\u00E9 \U0001F600|"},
      {"\\ansicpg1251 \xCF\xB8\xF2\xF0", "\u041F\u0451\u0442\u0440|"},
      {" \\'zz\\'4", "zz4|"},
  };
  for (const Row& row : rows) EXPECT_EQ(Texts(Rich(row.Body)), row.Read) << row.Body;
}

TEST(RichText, UnicodeCharactersAndTheirReplacements) {
  const Row rows[] = {
      {"\\u233?a", "\u00E9a|"},
      {"\\u233 ?a", "\u00E9a|"},
      {"\\u233\\'e9a", "\u00E9a|"},
      {"\\u233{?\\'e9{x}}a", "\u00E9a|"},
      {"\\u8217\\rquote a", "\u2019a|"},
      {"\\u8217\\~a", "\u2019a|"},
      {"\\u233\xC3\xA9 a", "\u00E9 a|"},
      {"\\u233\\b a", "\u00E9a|"},
      {"\\u233\\par a", "\u00E9|a|"},
      {"\\uc0\\u233 a", "\u00E9a|"},
      {"\\uc2\\u233 ??a", "\u00E9a|"},
      {"\\uc3\\u233 ?\\'3f{?}a", "\u00E9a|"},
      {"{\\uc2\\u233 ??}\\u233?a", "\u00E9\u00E9a|"},
      {"{\\uc9\\u233 ?}a", "\u00E9a|"},
      {"\\u-3913?a", "\uF0B7a|"},
      {"\\u55357?\\u56832?a", "\U0001F600a|"},
      {"\\u-10179\\'3f\\u-8704\\'3f", "\U0001F600|"},
      {"\\uc0\\u55357\\u56832", "\U0001F600|"},
      {"\\u128512?a", "\U0001F600a|"},
      {"\\u55357?a\\u56832?b", "ab|"},
      {"\\u99999999999?a\\u-99999?b\\u c", "abc|"},
  };
  for (const Row& row : rows) EXPECT_EQ(Texts(Rich(row.Body)), row.Read) << row.Body;
}

TEST(RichText, LooksOfText) {
  const std::string colors = "{\\colortbl;\\red255\\green0\\blue0;\\red1\\green2\\blue999;;}";
  const Row rows[] = {
      {" a\\b b\\i c\\b0\\ul d\\i0\\ulnone e", "<>a<b>b<bi>c<iu>d<>e"},
      {" {\\b a}b{\\ulw c{\\ul0 d}}", "<b>a<>b<u>c<>d"},
      {"\\b\\i\\fs48 a\\plain b", "<bis48>a<>b"},
      {"\\b {}{\\i}a\\b0\\b b", "<b>ab"},
      {"\\fs20 a\\fs b\\fs0 c\\fs-4 d\\fs99999999999999999999 e", "<s20>a<>bcd<s3276>e"},
      {colors + "\\cf1 a\\cf2 b\\cf3 c\\cf0 d\\cf99 e\\cf-1 f", "<c16711680>a<c66303>b<>cdef"},
      {"\\cf1 a" + colors, "<>a"},
      {"{\\colortbl\\red1}\\cf0 a\\red7 b", "<>ab"},
  };
  for (const Row& row : rows) {
    const RichText read = ReadRichText(Rich(row.Body));
    ASSERT_EQ(read.Paragraphs.size(), 1U) << row.Body;
    EXPECT_EQ(Runs(read.Paragraphs[0]), row.Read) << row.Body;
  }
}

TEST(RichText, IndentsBulletsAndNumbers) {
  const std::string bullet = "{\\*\\pn\\pnlvlblt\\pnf2\\pnindent0{\\pntxtb\\'B7}}";
  const std::string number = "{\\*\\pn\\pnlvlbody\\pnf0\\pnindent0\\pnstart1\\pndec{\\pntxta.}}";
  const Row rows[] = {
      {"\\li720\\fi-360 a\\par b\\par\\pard c", "720,-360 a|720,-360 b|0,0 c|"},
      {"\\pard{\\pntext\\f2\\'B7\\tab}" + bullet +
           "\\fi-360\\li720 a\\par{\\pntext\\f2\\'B7\\tab}b\\par\\pard c",
       "720,-360* a|720,-360* b|0,0 c|"},
      {bullet + "a\\par b\\par " + number + "c", "0,0* a|0,0* b|0,0 c|"},
      {"{\\pntext\\f0 1.\\tab}" + number + "a\\par{\\pntext\\f0 2.\\tab}b", "0,0 1.\ta|0,0 2.\tb|"},
      {"{\\listtext\\pard\\plain\\f3 \\loch\\hich \\'a7\\tab}a\\par b", "0,0* a|0,0 b|"},
      {"{\\listtext\\f3{\\u-3913 ?}\\tab}a\\par{\\listtext\\b IV)}b\\par{\\listtext 7}c",
       "0,0* a|0,0 IV)b|0,0 7c|"},
      {bullet + "\\li720\\fi-360 a\\line b\\par c", "720,-360* a|720,0 b|720,-360* c|"},
      {"\\li99999999\\fi-99999999999 a", "31680,-31680 a|"},
      {"{\\pntext}{\\pntext\\par\\tab}\\pnlvlblt a", "0,0 a|"},
      {"{\\pntext 1.\\pict 00}a\\par{\\pntext 2.}b", "0,0 1.a|0,0 2.b|"},
      {"{\\li300 a}\\par b", "0,0 a|0,0 b|"},
      {"{\\pard\\li300 a\\par}b", "300,0 a|0,0 b|"},
  };
  for (const Row& row : rows) EXPECT_EQ(Layout(Rich(row.Body)), row.Read) << row.Body;
}

TEST(RichText, DestinationsAreSkipped) {
  const std::string skipped[] = {
      "{\\fonttbl{\\f0\\fswiss Arial;}{\\f1 Symbol;}}",
      "{\\stylesheet{\\s1 heading {\\*\\additive} 1;}}",
      "{\\info{\\title x}{\\author y}}",
      "{\\pict\\wmetafile8 0102fe}",
      "{\\pict\\bin4 }{\\b}",
      "{\\*\\shppict{\\pict\\bin3 \\}}}}",
      "{\\header x\\par}{\\footerf y}{\\footnote z}",
      "{\\object{\\*\\objdata 00}{\\result x}}",
      "{\\*\\generator x;}{\\generator x;}",
      "{\\*\\unknown x{\\b y}}",
      "{\\*\n\\unknown x}",
      "{\\*\\bin2 }}x}",
      "{\\*\\pn\\pnlvlblt x{\\pntxtb y}{\\pntxta z}}",
      "{\\*\\expandedcolortbl;;}",
  };
  for (const std::string& each : skipped) EXPECT_EQ(Texts(Rich(" a" + each + "b")), "ab|") << each;
  EXPECT_EQ(Texts(Rich("{\\field{\\*\\fldinst HYPERLINK x}{\\fldrslt here}}")), "here|");
  EXPECT_EQ(Texts(Rich("{\\field{\\fldinst PAGE}{\\fldrslt{\\b 1}}}")), "1|");
}

TEST(RichText, BrokenTextGivesWhatWasReadable) {
  const Row rows[] = {
      {"{\\rtf", ""},
      {"{\\rtf1 a", "a|"},
      {"{\\rtf1 a\\par b\\", "a|b|"},
      {"{\\rtf1 a\\'e", "ae|"},
      {"{\\rtf1 a{\\b b", "ab|"},
      {"{\\rtf1 a{\\fonttbl x", "a|"},
      {"{\\rtf1 a\\bin99999999999 bc}", "a|"},
      {"{\\rtf1 a\\bin-5 b\\bin c}", "abc|"},
      {"{\\rtf1 a\\u233", "a\u00E9|"},
      {"{\\rtf1 a}b}{\\rtf1 c}", "a|"},
      {"{\\rtf1 a{\\*}b{\\*{x}\\b c}}", "abxc|"},
      {"{\\rtf1\\pict a\\*\\unknown b}", "ab|"},
      {"\xEF\xBB\xBF\r\n {\\rtf1 a}", "a|"},
      {std::string("{\\rtf1 a\0b\\\0c}", 14), "abc|"},
  };
  for (const Row& row : rows) EXPECT_EQ(Texts(row.Body), row.Read) << row.Body;
}

TEST(RichText, OtherTextsArePlainOrNothing) {
  const Row rows[] = {
      {"", ""},
      {"a\tb\n\nc\n", "a\tb||c|"},
      {"a\r\nb\rc\u2028d", "a|b|c|d|"},
      {"\xEF\xBB\xBFplain caf\u00E9 {\\b}", "plain caf\u00E9 {\\b}|"},
      {"{\\rtfm a}", "{\\rtfm a}|"},
      {" {\\rt", " {\\rt|"},
      {"caf\xE9", ""},
      {"a\x01", ""},
      {"a\u0085b", ""},
      {"\xFF\xFE{\\rtf1 a}", ""},
      {std::string("PK\3\4\0\0", 6), ""},
  };
  for (const Row& row : rows) EXPECT_EQ(Texts(row.Body), row.Read) << row.Body;
}

std::string Repeated(const std::string& part, std::size_t size) {
  std::string text = "{\\rtf1 ";
  while (text.size() < size) text += part;
  return text;
}

TEST(RichText, DeepGroupsAreSkippedAndWhatFollowsIsRead) {
  const std::string opened = Repeated("{a", 4'000);
  EXPECT_EQ(Texts(opened), std::string(199, 'a') + "|");
  EXPECT_EQ(Texts(opened + std::string(1'996, '}') + "end}"), std::string(199, 'a') + "end|");
}

/// Five megabytes, less where a sanitizer makes everything slow.
std::size_t LargeSize() {
  const char* slowness = std::getenv("QVES_SLOWNESS");
  return 5'000'000U / std::size_t(slowness ? std::max(std::atoi(slowness), 1) : 1);
}

TEST(RichText, LargeTextsEndInBoundedMemory) {
  for (const char* part :
       {"{", "{\\b", "{}", "\\par", "\\b a\\b0 b", "\\'e9", "\\u233?", "{\\*\\pn{\\pntext", "{\\pict 00}",
        "\\u55357", "\\uc99\\u9{", "{\\colortbl;", "longword", "\\longword", "longword\\longword9", "\xE9"}) {
    std::size_t pieces = 0;
    for (const Paragraph& each : ReadRichText(Repeated(part, LargeSize())).Paragraphs)
      pieces += 1 + each.Runs.size();
    EXPECT_LE(pieces, 2'000'000U) << part;
  }
}

TEST(RichText, BeyondItsPiecesADocumentKeepsItsText) {
  const std::string source = Repeated("a\\par{\\b b}", LargeSize());
  std::ptrdiff_t letters = 0;
  for (const Paragraph& each : ReadRichText(source).Paragraphs) {
    const std::string text = PlainText(each);
    letters += std::count(text.begin(), text.end(), 'a') + std::count(text.begin(), text.end(), 'b');
  }
  EXPECT_EQ(letters, std::count(source.begin() + 1, source.end(), '{') * 2);
}

}  // namespace
}  // namespace qves
