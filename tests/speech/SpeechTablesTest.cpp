// The pure parts: languages, scales, texts and the order of voices.
#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>

#include "SpeechRig.h"
#include "speech/LanguageIds.h"
#include "speech/SpeechScales.h"
#include "speech/SpeechText.h"
#ifdef QVES_HAVE_ESPEAK
#include "speech/espeak/EspeakVoices.h"
#include "speech/sound/SoundDevice.h"
#endif

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
    int (*Scale)(int);
    int From;
    int To;
  };
  const Row rows[] = {{EspeakRate, 170, 170},    {EspeakRate, -5, 80},        {EspeakRate, 99999, 450},
                      {SpeechdRate, 80, -100},   {SpeechdRate, 0, -100},      {SpeechdRate, 175, 0},
                      {SpeechdRate, 450, 100},   {SpeechdRate, 312, 50},      {SpeechdRate, 500, 100},
                      {EspeakVolume, 0, 0},      {EspeakVolume, 65535, 100},  {EspeakVolume, 32768, 50},
                      {EspeakVolume, -1, 0},     {EspeakVolume, 70000, 100},  {SpeechdVolume, 0, -100},
                      {SpeechdVolume, 32768, 0}, {SpeechdVolume, 65535, 100}, {EspeakPitch, 0, 0},
                      {EspeakPitch, 474, 47},    {EspeakPitch, 1001, 100},    {SpeechdPitch, 0, -100},
                      {SpeechdPitch, 474, -5},   {SpeechdPitch, 1000, 100}};
  for (const Row& row : rows) EXPECT_EQ(row.Scale(row.From), row.To) << row.From;
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
                                                      {"\x80\xc3\xa4", " ä"}};
  for (const auto& [dirty, clean] : rows) EXPECT_EQ(CleanText(dirty), clean);
}

TEST(SpeechText, MarkupEscapesAndKeepsItsMarks) {
  const BookMark marks[] = {{0, 1}, {3, -2}, {9, 3}};
  EXPECT_EQ(
      SsmlOf("ä<b & 'c'", OrderedMarks(marks, 10)),
      "<speak><mark name=\"1\"/>ä&lt;<mark name=\"-2\"/>b &amp; &apos;c<mark name=\"3\"/>&apos;</speak>");
  const BookMark inside[] = {{1, 4}};
  EXPECT_EQ(SsmlOf("äb", inside), "<speak>ä<mark name=\"4\"/>b</speak>");
  EXPECT_EQ(CharacterPositions("ä€b", OrderedMarks(std::vector<BookMark>{{5, 1}, {2, 2}, {99, 3}}, 6)),
            (std::vector<std::size_t>{1, 2, 3}));
}

TEST(SpeechText, IsCutAtSentencesWithMarks) {
  const BookMark marks[] = {{0, 1}, {4, 2}, {9, 3}, {99, 4}};
  const auto pieces = CutText("One two. Three.", OrderedMarks(marks, 15), 100);
  ASSERT_EQ(pieces.size(), 2U);
  EXPECT_EQ(pieces[0].Text, "One two. ");
  EXPECT_EQ(pieces[0].FirstMarks, std::vector<std::int32_t>{1});
  ASSERT_EQ(pieces[0].InnerMarks.size(), 1U);
  EXPECT_EQ(pieces[0].InnerMarks[0].Number, 2);
  EXPECT_EQ(pieces[1].FirstMarks, std::vector<std::int32_t>{3});
  ASSERT_EQ(pieces[1].InnerMarks.size(), 1U);
  EXPECT_EQ(pieces[1].InnerMarks[0].Offset, 6U);
}

TEST(SpeechText, ALongTextIsCutWithNothingLost) {
  std::string text;
  for (int i = 0; i < 2000; ++i) text += i % 7 == 0 ? "ending here.\n" : i % 3 == 0 ? "ä€😀ä€😀ä€😀" : "word ";
  text += std::string(500, 'x');
  std::string together;
  for (const TextPiece& piece : CutText(text, {}, 60)) {
    ASSERT_LE(piece.Text.size(), 60U);
    ASSERT_EQ(CleanText(piece.Text), piece.Text) << "cut within a character";
    together += piece.Text;
  }
  EXPECT_EQ(together, text);
}

#ifdef QVES_HAVE_ESPEAK
std::vector<std::string> NamesFor(std::string_view desktopLanguage) {
  const std::vector<EspeakVoice> all = {
      {"Afrikaans", "gmw/af", {{5, "af"}}},
      {"German", "gmw/de", {{5, "de"}}},
      {"Caribbean", "gmw/en-029", {{5, "en-029"}, {10, "en"}}},
      {"Britain", "gmw/en", {{2, "en-gb"}, {2, "en"}}},
      {"America", "gmw/en-US", {{2, "en-us"}, {3, "en"}}},
      {"robot", "!v/robot", {{5, "variant"}}},
      {"mbrola", "mb/mb-us1", {{3, "en-us"}}},
  };
  std::vector<std::string> names;
  for (const Voice& voice : OfferedVoices(all, desktopLanguage, nullptr))
    names.push_back(voice.Info.VoiceName);
  return names;
}

TEST(EspeakVoices, BeginWithTheDesktopsLanguageThenEnglish) {
  using Names = std::vector<std::string>;
  EXPECT_EQ(NamesFor("en"), (Names{"Britain", "America", "Caribbean", "Afrikaans", "German", "mbrola"}));
  EXPECT_EQ(NamesFor("en-us"), (Names{"America", "Britain", "Caribbean", "Afrikaans", "German", "mbrola"}));
  EXPECT_EQ(NamesFor("de-at"), (Names{"German", "Britain", "America", "Caribbean", "Afrikaans", "mbrola"}));
}

TEST(EspeakVoices, UnpackTheirLanguages) {
  const auto languages = UnpackLanguages(
      "\x02"
      "en-gb\0"
      "\x05"
      "en\0\0");
  ASSERT_EQ(languages.size(), 2U);
  EXPECT_EQ(languages[1], (std::pair<int, std::string>(5, "en")));
}

TEST(SoundDevice, IsOneThatPlaysOrADefaultOfTheUsersOwn) {
  struct Row {
    const char* Device;
    const char* Settings;
    bool Heard;
  };
  const Row rows[] = {{"controlC0", "", false},
                      {"pcmC0D0c", "", false},
                      {"pcmC1D3p", "", true},
                      {"seq", "# pcm.!default pulse\ndefaults.pcm.card 1\n", false},
                      {"seq", "\npcm.!default {\n  type null\n}\n", true},
                      {"seq", "pcm {\n  default server  # over the network\n}", true}};
  const PrivateDesktop desktop;
  const std::string folder = desktop.Folder();
  EXPECT_FALSE(HasSoundDevice({folder + "/missing", {folder + "/missing"}}));
  for (const Row& row : rows) {
    std::filesystem::create_directory(folder + "/snd");
    std::ofstream(folder + "/snd/" + row.Device).put('x');
    std::ofstream(folder + "/settings") << row.Settings;
    EXPECT_EQ(HasSoundDevice({folder + "/snd", {folder + "/settings"}}), row.Heard)
        << row.Device << " " << row.Settings;
    std::filesystem::remove_all(folder + "/snd");
  }
}
#endif

}  // namespace
}  // namespace qves
