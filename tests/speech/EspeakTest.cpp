// espeak-ng in this process: without any sound device, and heard through a private sound server.
#include <gtest/gtest.h>
#include <signal.h>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <thread>

#include "SpeechRig.h"
#include "speech/SpeechBackEnds.h"

namespace qves {
namespace {

using namespace std::chrono_literals;

constexpr int Loud = 500;

const std::string LongText = [] {
  std::string text;
  while (text.size() < 1'000'000) text += "The quick brown fox jumps over the lazy dog and runs away. ";
  return text;
}();

class EspeakTest : public testing::Test {
 protected:
  void Open() {
    List = MakeSpeech(SpeechChoice::EspeakNg, Pump);
    Engine = List->Open([](const auto&) { return 1; });
    Listener = std::make_unique<TestListener>(Engine.get());
    List->SetListener(Listener.get());
    Speaker = Engine->Speaker(2);
  }
  /// What the user's settings say of the sound device.
  void UseDevice(const std::string& settings) {
    std::ofstream(Desktop.Folder() + "/.asoundrc") << "pcm.!default { " << settings << " }\n";
  }
  bool Idle(std::chrono::milliseconds longest) {
    return ReachedWithin(Pump, longest, [&] { return !Engine->Busy(); });
  }

  PrivateDesktop Desktop;
  TestPump Pump;
  std::unique_ptr<TestListener> Listener;
  std::unique_ptr<TTS> List;
  std::unique_ptr<TtsEngine> Engine;
  TtsSpeaker* Speaker = nullptr;
};

TEST_F(EspeakTest, ListsTheVoicesOfTheDesktopsLanguageThenTheEnglishOnes) {
  struct Row {
    const char* Locale;
    const char* FirstVoice;
    int LanguageId;
    const char* FirstOther;
  };
  const char* const british = "English (Great Britain)";
  for (const Row& row : {Row{"C", british, 9, "Afrikaans"},
                         {"en_US.UTF-8", "English (America)", 9, "Afrikaans"},
                         {"de_AT.UTF-8", "German", 7, british},
                         {"pt_BR", "Portuguese (Brazil)", 22, british}}) {
    Desktop.Environment().Set("LC_ALL", row.Locale);
    Engine.reset();
    List.reset();
    Open();
    ASSERT_TRUE(ReachedWithin(Pump, 5s, [&] { return !List->Engines().empty(); }));
    const std::vector<TtsEngineInfo> voices = List->Engines();
    EXPECT_GT(voices.size(), 50U);
    EXPECT_EQ(voices[0], (TtsEngineInfo{"eSpeak NG", "espeak-ng", row.FirstVoice, row.LanguageId}));
    const auto other = std::find_if(voices.begin(), voices.end(), [&](const TtsEngineInfo& voice) {
      return voice.LanguageId != row.LanguageId;
    });
    EXPECT_EQ(other->VoiceName, row.FirstOther);
    for (const TtsEngineInfo& voice : voices) {
      const auto same = [&](const TtsEngineInfo& one) { return one.VoiceName == voice.VoiceName; };
      EXPECT_EQ(std::count_if(voices.begin(), voices.end(), same), 1) << voice.VoiceName;
    }
  }
}

// With no sound server and no sound device.
class EspeakUnheardTest : public EspeakTest {
 protected:
  void SetUp() override {
    UseDevice("type hw card 99");  // there is none of this number
    Open();
  }
};

TEST_F(EspeakUnheardTest, NothingBlocksBusyEndsAndNobodyComplains) {
  testing::internal::CaptureStderr();
  Engine->SetSpeed(170);
  for (const std::string& text : {std::string("7"), std::string("\xff\xfe"), LongText}) {
    EXPECT_LT(TimeOf([&] { Speaker->SpeakNow(text); }), Prompt);
    EXPECT_TRUE(Idle(5s));
  }
  for (int i = 0; i < 200; ++i) Speaker->SpeakNow("text " + std::to_string(i));
  EXPECT_TRUE(Idle(5s));
  Pump.ProcessEvents(0);
  EXPECT_FALSE(Listener->Reports.empty());
  EXPECT_EQ(testing::internal::GetCapturedStderr(), "") << "of a device that cannot be opened";
}

TEST_F(EspeakUnheardTest, ADeviceThatComesIsHeardWithTheNextText) {
  Speaker->SpeakNow("before");
  EXPECT_TRUE(Idle(5s));
  const std::string played = Desktop.Folder() + "/played";
  UseDevice("type file file \"" + played + "\" format raw slave.pcm null");
  const BookMark marks[] = {{6, 1}};
  Speaker->SpeakNow("after that", marks);
  EXPECT_TRUE(Idle(5s));
  EXPECT_TRUE(ReachedWithin(Pump, 1s, [&] { return Listener->Reports.size() == 2; }));
  EXPECT_EQ(Listener->Reports, (std::vector<std::string>{"mark 1 of 2", "stopped 2"}));
  ASSERT_TRUE(std::filesystem::exists(played));
  EXPECT_GT(std::filesystem::file_size(played), 10'000U);
}

TEST_F(EspeakTest, MayBeDestroyedAtAnyMoment) {
  for (int i = 0; i < 5; ++i) {
    ASSERT_NO_FATAL_FAILURE(Open());
    Speaker->SpeakNow(LongText);
    Speaker->SpeakQueued("more");
    EXPECT_LT(TimeOf([&] {
                Engine.reset();
                List.reset();
              }),
              Prompt);
  }
}

class EspeakHeardTest : public EspeakTest {
 protected:
  void SetUp() override {
    if (!Sound.Ready()) GTEST_SKIP() << "pulseaudio and parec are needed";
    Open();
  }
  bool Heard() {
    return ReachedWithin(Pump, 5s, [&] { return Sound.LoudestOfLast(300ms) > Loud; });
  }
  bool Silent() {
    return ReachedWithin(Pump, 3s, [&] { return Sound.LoudestOfLast(200ms) <= Loud; });
  }
  PrivateSound Sound{Desktop};
};

TEST_F(EspeakHeardTest, SpeaksStopsAndSpeaksAgain) {
  EXPECT_LT(TimeOf([&] { Speaker->SpeakNow(LongText); }), Prompt);
  EXPECT_TRUE(Heard());
  EXPECT_TRUE(Engine->Busy());
  EXPECT_LT(TimeOf([&] { Speaker->Stop(); }), Prompt);
  EXPECT_TRUE(Silent());
  EXPECT_TRUE(Idle(1s));
  for (int i = 0; i < 200; ++i) Speaker->SpeakNow("interrupted " + std::to_string(i));
  EXPECT_TRUE(Heard());
  EXPECT_TRUE(Idle(5s)) << "the interrupted texts were dropped";
  Pump.ProcessEvents(0);
  EXPECT_EQ(Listener->Reports.back(), "stopped 2");
}

TEST_F(EspeakHeardTest, VolumeZeroIsSilent) {
  Engine->SetVolume(0);
  Speaker->SpeakNow("This is not to be heard by anybody.");
  EXPECT_FALSE(ReachedWithin(Pump, 1s, [&] { return Sound.LoudestOfLast(300ms) > Loud; }));
  Speaker->Stop();
  Engine->SetVolume(65535);
  Speaker->SpeakNow("But this is.");
  EXPECT_TRUE(Heard());
}

TEST_F(EspeakHeardTest, MarksComeInOrderWhenTheyAreHeard) {
  Engine->SetSpeed(300);
  // Marks before the text, between sentences, in a sentence and behind the text.
  const BookMark marks[] = {{0, 1}, {10, 2}, {21, 3}, {99, 4}};
  const auto begin = std::chrono::steady_clock::now();
  std::vector<std::chrono::milliseconds> times;
  Speaker->SpeakNow("\xc3\x84 first. Then second and third.", marks);
  ASSERT_TRUE(ReachedWithin(Pump, 8s, [&] {
    while (times.size() < Listener->Reports.size())
      times.push_back(
          std::chrono::duration_cast<std::chrono::milliseconds>(std::chrono::steady_clock::now() - begin));
    return !Engine->Busy() && times.size() == 5;
  }));
  EXPECT_EQ(Listener->Reports, (std::vector<std::string>{"mark 1 of 2", "mark 2 of 2", "mark 3 of 2",
                                                         "mark 4 of 2", "stopped 2"}));
  EXPECT_GT(times[1] - times[0], 200ms) << "reported when spoken, not when synthesized";
  EXPECT_GT(times[3] - times[1], 400ms);
}

TEST_F(EspeakHeardTest, ASoundServerThatDiesIsSurvived) {
  Speaker->SpeakNow(LongText);
  ASSERT_TRUE(Heard());
  Sound.Signal(SIGSTOP);
  EXPECT_LT(TimeOf([&] { Speaker->SpeakNow("7"); }), Prompt);
  EXPECT_TRUE(Idle(6s)) << "a hung sound server does not keep it busy";
  Sound.Signal(SIGKILL);
  EXPECT_LT(TimeOf([&] { Speaker->SpeakNow("8"); }), Prompt);
  EXPECT_TRUE(Idle(6s));
}

TEST_F(EspeakHeardTest, ATextAfterASoundServerWasReplacedUnnoticedIsHeardWhole) {
  const BookMark marks[] = {{0, 1}, {6, 2}};
  Speaker->SpeakNow("Before.");
  ASSERT_TRUE(Idle(6s));
  std::this_thread::sleep_for(50ms);  // the server is not listened to any more, so its end is not noticed
  Sound.Signal(SIGKILL);
  std::optional<PrivateSound> next;
  ASSERT_TRUE(ReachedWithin(Pump, 10s, [&] {
    next.emplace(Desktop);
    return next->Ready();
  }));
  Pump.ProcessEvents(0);
  Listener->Reports.clear();
  Speaker->SpeakNow("First and second.", marks);
  EXPECT_TRUE(ReachedWithin(Pump, 2s, [&] { return next->LoudestOfLast(300ms) > Loud; }));
  EXPECT_TRUE(ReachedWithin(Pump, 6s, [&] { return Listener->Reports.size() == 3; }));
  EXPECT_EQ(Listener->Reports, (std::vector<std::string>{"mark 1 of 2", "mark 2 of 2", "stopped 2"}));
}

TEST_F(EspeakHeardTest, WhatADyingSoundServerCutsOffIsNotReportedAndTheNextOneIsUsedAtOnce) {
  UseDevice("type hw card 99");
  const BookMark marks[] = {{0, 1}, {LongText.size() / 2, 2}};
  Speaker->SpeakNow(LongText, marks);
  ASSERT_TRUE(Heard());
  Sound.Signal(SIGKILL);
  EXPECT_TRUE(Idle(6s));
  Pump.ProcessEvents(0);
  EXPECT_EQ(Listener->Reports, (std::vector<std::string>{"mark 1 of 2", "stopped 2"}));
  Speaker->SpeakNow("unheard");
  EXPECT_TRUE(Idle(6s));
  // Also when the next one is lost soon.
  for (int round = 0; round < 2; ++round) {
    std::optional<PrivateSound> next;
    ASSERT_TRUE(ReachedWithin(Pump, 10s, [&] {
      next.emplace(Desktop);
      return next->Ready();
    }));
    Speaker->SpeakNow("This is heard again, and for a while.");
    EXPECT_TRUE(ReachedWithin(Pump, 500ms, [&] { return next->LoudestOfLast(300ms) > Loud; })) << round;
    next->Signal(SIGKILL);
    EXPECT_TRUE(Idle(6s));
  }
}

}  // namespace
}  // namespace qves
