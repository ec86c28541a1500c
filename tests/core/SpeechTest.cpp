#include <gtest/gtest.h>

#include <limits>

#include "FakePlatform.h"
#include "model/ArithmeticFault.h"
#include "services/ServiceSet.h"

namespace qves {
namespace {

struct SpeechTest : testing::Test {
  FakePlatform Outside;
  ServiceSet Set{Outside.All};
  SpeechService& Speech = Set.All.Speech;

  void SetUp() override {
    Set.All.SettingsStore.ReadSettings();
    Set.All.Messages.LoadMessageFile("CalcMsg.txt");
  }
  bool Create() { return Speech.CreateSpeech("", "", "", 9); }
};

TEST_F(SpeechTest, TheEngineIsChosenByTheSettingsThenByLanguageThenTheFirst) {
  Outside.Speech.Known = {{"Ace", "P", "Hans", 7},
                          {"Ace", "P", "Anna", 1033},
                          {"IBM", "P", "Reed", 2057},
                          {"IBM", "P", "reed", 9}};
  const struct {
    const char* Voice;
    const char* Manufacturer;
    const char* Product;
    int Language;
    const char* Opened;
  } rows[] = {{"Reed", "IBM", "", 9, "open 3"}, {"", "", "", 9, "open 2"},     {"", "", "", 0, "open 1"},
              {"Reed", "Ace", "", 9, "open 2"}, {"None", "", "", 0, "open 1"}, {"Hans", "", "", 9, "open 2"},
              {"REED", "", "Q", 12, "open 1"},  {"reed", "", "P", 9, "open 4"}};
  for (const auto& row : rows) {
    Outside.Speech.Settings.clear();
    EXPECT_TRUE(Speech.CreateSpeech(row.Voice, row.Manufacturer, row.Product, row.Language));
    EXPECT_EQ(Outside.Speech.Settings.at(0), row.Opened) << row.Voice << row.Language;
  }
}

TEST_F(SpeechTest, VoiceSettings) {
  const struct {
    std::int16_t Step;
    const char* Pitch;
  } rows[] = {{1, "pitch 0"}, {10, "pitch 47"}, {20, "pitch 100"}, {-1, "volume 65535"}};
  for (const auto& row : rows) {
    Set.All.Settings.SystemPitch = row.Step;
    EXPECT_TRUE(Create());
    EXPECT_EQ(Outside.Speech.Settings.back(), row.Pitch) << row.Step;
  }
}

TEST_F(SpeechTest, WithoutAnEngineEverythingIsSilent) {
  const auto listened = [&] {
    Speech.SpeakText("a");
    Speech.SpeakTextQueued("b");
    Speech.StopSpeech();
    Speech.EndTurn();
    Speech.ShutDownSpeech();
    return Outside.Speech.Said.empty() && Speech.LastSpokenText().empty();
  };
  EXPECT_TRUE(listened());
  Outside.Speech.Broken = true;
  EXPECT_FALSE(Create());
  EXPECT_TRUE(listened());
  Outside.Speech.Known.clear();
  EXPECT_FALSE(Create());
  EXPECT_TRUE(listened());
  EXPECT_EQ(Speech.SpeakableChar("&"), "&");
  EXPECT_EQ(Speech.SpeakableChar("\r"), "new line ");
  EXPECT_EQ(Speech.TranslateForSpeech("12"), "12");
}

TEST_F(SpeechTest, NumbersAndCharacters) {
  Create();
  EXPECT_EQ(Speech.SpeechFormatNumber("-12.5"), " minus 12point5");
  EXPECT_EQ(Speech.SpeechFormatNumber("2 * 3"), "2  times  3");
  EXPECT_EQ(Speech.TranslateForSpeech("a12.345 6"), "a1 2.3 4 5 6");
  EXPECT_EQ(Speech.SpeakableChar(""), "");
  EXPECT_EQ(Speech.SpeakableChar("\v"), "new line ");
  EXPECT_EQ(Speech.SpeakableChar("&"), "ampersand");
  EXPECT_EQ(Speech.SpeakableChar("a"), "a");
  EXPECT_EQ(Speech.SpeakableChar("\xC3\xA9"), "\xC3\xA9");
}

TEST_F(SpeechTest, ATurnHandsOverWhatWasNotCutOffInIt) {
  using Texts = std::vector<std::string>;
  enum Act { Now, Queued, Stop };
  const struct {
    std::vector<std::pair<Act, const char*>> Acts;
    Texts Heard;
  } rows[] = {
      {{{Now, "name"}, {Queued, "help"}, {Now, "echo"}}, {"now echo"}},
      {{{Now, "name"}, {Queued, "help"}}, {"now name", "queued help"}},
      {{{Queued, "value"}}, {"queued value"}},
      {{{Now, "name"}, {Stop, ""}, {Queued, "value"}}, {"stop", "queued value"}},
      {{{Queued, "a"}, {Stop, ""}}, {"stop"}},
      {{}, {}},
  };
  Create();
  for (const auto& row : rows) {
    Outside.Speech.Said.clear();
    for (const auto& [act, text] : row.Acts)
      act == Now      ? Speech.SpeakText(text)
      : act == Queued ? Speech.SpeakTextQueued(text)
                      : Speech.StopSpeech();
    EXPECT_EQ(Outside.Speech.Said, Texts{}) << "before the event is over";
    Speech.EndTurn();
    EXPECT_EQ(Outside.Speech.Said, row.Heard);
    Speech.EndTurn();
    EXPECT_EQ(Outside.Speech.Said, row.Heard) << "once";
  }
}

TEST_F(SpeechTest, ALongTextIsGivenToTheVoicePieceByPiece) {
  Create();
  std::string text;
  std::vector<BookMark> marks;
  for (int sentence = 0; sentence < 200'000; ++sentence) {
    if (sentence > 0) marks.push_back({text.size(), sentence});
    text += "This sentence has 2.5 numbers in its middle.\n";
  }
  marks.push_back({text.size(), 200'000});
  Speech.ReadAloud(text, marks, false, ValueKind::Prose);
  Speech.EndTurn();
  ASSERT_EQ(Outside.Speech.Said.size(), 2U);
  std::size_t given = Outside.Speech.Said[0].size() + Outside.Speech.Said[1].size();
  EXPECT_LT(given, 64'000U) << "the first word does not wait for the rest";
  for (const BookMark& mark : marks) Speech.BookMarkReached(mark.Number);
  std::string heard;
  for (const std::string& piece : Outside.Speech.Said) heard += piece.substr(piece.find(' ') + 1);
  EXPECT_TRUE(heard == text) << "all of it, in order";
  // What is spoken at once ends the reading.
  Speech.ReadAloud(text, marks, false, ValueKind::Prose);
  Speech.SpeakTextQueued("behind");
  Speech.EndTurn();
  Speech.SpeakText("key");
  Speech.EndTurn();
  const std::size_t before = Outside.Speech.Said.size();
  for (const BookMark& mark : marks) Speech.BookMarkReached(mark.Number);
  EXPECT_EQ(Outside.Speech.Said.size(), before);
}

TEST_F(SpeechTest, ShutdownWaitsForTheEndAndNoLongerThanItsLimit) {
  Create();
  Outside.Speech.BusyNow = true;
  Outside.Events.OnRun = [&] { Outside.Speech.BusyNow = Outside.Events.Runs < 3; };
  Speech.ShutDownSpeech();
  EXPECT_EQ(Outside.Events.Runs, 3);

  Create();
  Outside.Speech.BusyNow = true;
  Outside.Events.OnRun = nullptr;
  Outside.Events.Runs = 0;
  Outside.TheClock.Step = 100;
  const auto start = Outside.TheClock.Ticks;
  Speech.ShutDownSpeech();
  EXPECT_LE(Outside.TheClock.Ticks - start, ShutDownWait + 500) << "one limit for all three waits";
  Speech.SpeakText("after");
  Speech.EndTurn();
  EXPECT_EQ(Outside.Speech.Said.back(), "stop");
}

TEST_F(SpeechTest, ShutdownNearTheEndOfTheTickCountOverflows) {
  Create();
  Outside.TheClock.Ticks = std::numeric_limits<std::int32_t>::max() - ShutDownWait + 1;
  EXPECT_THROW(Speech.ShutDownSpeech(), ArithmeticFault);
}

}  // namespace
}  // namespace qves
