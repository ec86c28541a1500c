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
  EXPECT_EQ(Outside.Speech.Said.back(), "stop");
}

TEST_F(SpeechTest, ShutdownNearTheEndOfTheTickCountOverflows) {
  Create();
  Outside.TheClock.Ticks = std::numeric_limits<std::int32_t>::max() - ShutDownWait + 1;
  EXPECT_THROW(Speech.ShutDownSpeech(), ArithmeticFault);
}

}  // namespace
}  // namespace qves
