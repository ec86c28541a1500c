// The pure parts: languages, scales, texts and the order of voices.
#include <gtest/gtest.h>

#include "speech/LanguageIds.h"
#include "speech/SpeechScales.h"
#include "speech/SpeechText.h"

namespace qves {
namespace {

TEST(LanguageIds, AreThoseOfTheSettings) {
  const std::pair<const char*, int> rows[] = {{"en", 9},  {"en-GB", 9}, {"EN_us", 9},  {"de-at", 7},
                                              {"fr", 12}, {"nb", 20},   {"zh-yue", 4}, {"chr-US-Qaaa", 92},
                                              {"sr", 26}, {"he", 13},   {"zu", 53},    {"jbo", 127},
                                              {"", 127},  {"e", 127},   {"eng", 127}};
  for (const auto& [tag, id] : rows) EXPECT_EQ(LanguageIdOf(tag), id) << tag;
}

TEST(LanguageIds, ComeFromTheLocale) {
  const std::pair<const char*, const char*> rows[] = {{"de_AT.UTF-8", "de-at"},
                                                      {"sr_RS@latin", "sr-rs"},
                                                      {"C.UTF-8", "en"},
                                                      {"POSIX", "en"},
                                                      {"", "en"},
                                                      {"fr", "fr"}};
  for (const auto& [locale, tag] : rows) EXPECT_EQ(TagOfLocale(locale), tag) << locale;
}

TEST(SpeechScales, KeepTheirRanges) {
  struct Row {
    int Value;
    Scale From;
    Scale To;
    int Scaled;
  };
  const Row rows[] = {{170, SpeedScale, SpeedScale, 170},   {-5, SpeedScale, SpeedScale, 80},
                      {99999, SpeedScale, SpeedScale, 450}, {312, {175, 450}, {0, 100}, 50},
                      {0, VolumeScale, {0, 100}, 0},        {65535, VolumeScale, {0, 100}, 100},
                      {32768, VolumeScale, {0, 100}, 50},   {-1, VolumeScale, {0, 100}, 0},
                      {70000, VolumeScale, {0, 100}, 100},  {0, VolumeScale, {-100, 100}, -100},
                      {32768, VolumeScale, {-100, 100}, 0}, {474, PitchScale, {0, 100}, 47},
                      {1001, PitchScale, {0, 100}, 100},    {474, PitchScale, {-100, 100}, -5}};
  for (const Row& row : rows) EXPECT_EQ(Scaled(row.Value, row.From, row.To), row.Scaled) << row.Value;
  const std::pair<int, int> rates[] = {{80, -100}, {0, -100}, {175, 0}, {312, 50}, {450, 100}, {500, 100}};
  for (const auto& [speed, rate] : rates) EXPECT_EQ(SpeechdRate(speed), rate) << speed;
}

TEST(SpeechText, WhatIsNotSpeakableBecomesBlanks) {
  using namespace std::string_literals;
  const std::pair<std::string, std::string> rows[] = {{"7 + 5\n\tä€😀", "7 + 5\n\tä€😀"},
                                                      {"a\xff\xfe b", "a   b"},
                                                      {"a\0b\x01\x1b"s, "a b  "},
                                                      {"\xc3", " "},
                                                      {"\xe2\x82x", "  x"},
                                                      {"\xc0\xaf", "  "},
                                                      {"\xed\xa0\x80", "   "},
                                                      {"\xf4\x90\x80\x80", "    "},
                                                      {"\xc2\x85.", "  ."},
                                                      {"\x80\xc3\xa4\x80", " ä "}};
  for (const auto& [dirty, clean] : rows) EXPECT_EQ(CleanText(dirty), clean);
}

TEST(SpeechText, MarksAreOrderedAndLieBetweenCharacters) {
  EXPECT_EQ(CharacterPositions("ä€b", OrderedMarks(std::vector<BookMark>{{5, 1}, {2, 2}, {99, 3}}, 6)),
            (std::vector<std::size_t>{1, 2, 3}));
}

// The pieces that a text is spoken in.
std::vector<MarkedText> PiecesOf(MarkedText text, std::size_t longest) {
  std::vector<MarkedText> pieces;
  while (!text.Text.empty()) {
    pieces.push_back(FirstPiece(text, longest));
    DropFront(text, pieces.back().Text.size());
  }
  return pieces;
}

TEST(SpeechText, IsCutAtSentencesWithMarks) {
  std::string pieces;
  for (const MarkedText& piece : PiecesOf({"One two. Three.", {{0, 1}, {4, 2}, {9, 3}, {15, 4}}}, 100)) {
    pieces += piece.Text + "|";
    for (const BookMark& mark : piece.Marks)
      pieces += std::to_string(mark.Number) + " at " + std::to_string(mark.Offset) + "|";
  }
  EXPECT_EQ(pieces, "One two. |1 at 0|2 at 4|Three.|3 at 0|4 at 6|");
}

TEST(SpeechText, ALongTextIsCutWithNothingLost) {
  std::string text;
  for (int i = 0; i < 2000; ++i) text += i % 7 == 0 ? "ending here.\n" : i % 3 == 0 ? "ä€😀ä€😀ä€😀" : "word ";
  text += std::string(500, 'x');
  std::string together;
  for (const MarkedText& piece : PiecesOf({text, {}}, 60)) {
    ASSERT_LE(piece.Text.size(), 60U);
    ASSERT_EQ(CleanText(piece.Text), piece.Text) << "cut within a character";
    together += piece.Text;
  }
  EXPECT_EQ(together, text);
}

}  // namespace
}  // namespace qves
