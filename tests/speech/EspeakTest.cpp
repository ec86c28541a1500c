// espeak-ng in this process: without any sound device, and heard through a private sound server.
#include <gtest/gtest.h>
#include <signal.h>

#include <algorithm>

#include "SpeechRig.h"
#include "speech/SpeechBackEnds.h"

namespace qves {
namespace {

using namespace std::chrono_literals;

constexpr int Loud = 500;
constexpr auto Prompt = 250ms;  // for calls that return at once, on a machine that may be busy

const std::string LongText = [] {
  std::string text;
  while (text.size() < 1'000'000) text += "The quick brown fox jumps over the lazy dog and runs away. ";
  return text;
}();

class EspeakTest : public testing::Test {
 protected:
  void Open() {
    list = MakeSpeech(SpeechChoice::EspeakNg, pump);
    ASSERT_TRUE(ReachedWithin(pump, 5s, [&] { return list->Count() > 0; }));
    engine = list->Open(1);
    listener = std::make_unique<TestListener>(engine.get());
    list->SetListener(listener.get());
    speaker = engine->Speaker(2);
  }
  bool Idle(std::chrono::milliseconds longest) {
    return ReachedWithin(pump, longest, [&] { return !engine->Busy(); });
  }

  PrivateDesktop desktop;
  TestPump pump;
  std::unique_ptr<TestListener> listener;
  std::unique_ptr<TTS> list;
  std::unique_ptr<TtsEngine> engine;
  TtsSpeaker* speaker = nullptr;
};

TEST_F(EspeakTest, ListsItsVoices) {
  ASSERT_NO_FATAL_FAILURE(Open());
  EXPECT_GT(list->Count(), 50);
  EXPECT_EQ(list->Item(1).Manufacturer, "eSpeak NG");
  EXPECT_EQ(list->Item(1).Product, "espeak-ng");
  EXPECT_EQ(list->Item(1).LanguageId, 9);
  const int german = FindEngine(*list, "eSpeak NG", "German");
  ASSERT_GT(german, 0);
  EXPECT_EQ(list->Item(german).LanguageId, 7);
}

TEST_F(EspeakTest, WithoutADeviceNothingBlocksAndBusyEnds) {
  ASSERT_NO_FATAL_FAILURE(Open());
  engine->SetSpeed(170);
  for (const std::string& text : {std::string("7"), std::string("\xff\xfe"), LongText}) {
    EXPECT_LT(TimeOf([&] { speaker->SpeakNow(text); }), Prompt);
    EXPECT_TRUE(Idle(5s));
  }
  for (int i = 0; i < 200; ++i) speaker->SpeakNow("text " + std::to_string(i));
  EXPECT_TRUE(Idle(5s));
  pump.ProcessEvents(0);
  EXPECT_FALSE(listener->Reports.empty());
}

TEST_F(EspeakTest, MayBeDestroyedAtAnyMoment) {
  for (int i = 0; i < 5; ++i) {
    ASSERT_NO_FATAL_FAILURE(Open());
    speaker->SpeakNow(LongText);
    speaker->SpeakQueued("more");
    EXPECT_LT(TimeOf([&] {
                engine.reset();
                list.reset();
              }),
              Prompt);
  }
}

class EspeakHeardTest : public EspeakTest {
 protected:
  void SetUp() override {
    if (!sound.Ready()) GTEST_SKIP() << "pulseaudio and parec are needed";
    Open();
  }
  bool Heard() {
    return ReachedWithin(pump, 5s, [&] { return sound.LoudestOfLast(300ms) > Loud; });
  }
  bool Silent() {
    return ReachedWithin(pump, 3s, [&] { return sound.LoudestOfLast(200ms) <= Loud; });
  }
  PrivateSound sound{desktop};
};

TEST_F(EspeakHeardTest, SpeaksStopsAndSpeaksAgain) {
  EXPECT_LT(TimeOf([&] { speaker->SpeakNow(LongText); }), Prompt);
  EXPECT_TRUE(Heard());
  EXPECT_TRUE(engine->Busy());
  EXPECT_LT(TimeOf([&] { speaker->Stop(); }), Prompt);
  EXPECT_TRUE(Silent());
  EXPECT_TRUE(Idle(1s));
  for (int i = 0; i < 200; ++i) speaker->SpeakNow("interrupted " + std::to_string(i));
  EXPECT_TRUE(Heard());
  EXPECT_TRUE(Idle(5s)) << "the interrupted texts were dropped";
  pump.ProcessEvents(0);
  EXPECT_EQ(listener->Reports.back(), "stopped 2");
}

TEST_F(EspeakHeardTest, VolumeZeroIsSilent) {
  engine->SetVolume(0);
  speaker->SpeakNow("This is not to be heard by anybody.");
  EXPECT_FALSE(ReachedWithin(pump, 1s, [&] { return sound.LoudestOfLast(300ms) > Loud; }));
  speaker->Stop();
  engine->SetVolume(65535);
  speaker->SpeakNow("But this is.");
  EXPECT_TRUE(Heard());
}

TEST_F(EspeakHeardTest, MarksComeInOrderWhenTheyAreHeard) {
  engine->SetSpeed(300);
  // Marks before the text, between sentences, in a sentence and behind the text.
  const BookMark marks[] = {{0, 1}, {10, 2}, {21, 3}, {99, 4}};
  const auto begin = std::chrono::steady_clock::now();
  std::vector<std::chrono::milliseconds> times;
  speaker->SpeakNow("\xc3\x84 first. Then second and third.", marks);
  ASSERT_TRUE(ReachedWithin(pump, 8s, [&] {
    while (times.size() < listener->Reports.size())
      times.push_back(
          std::chrono::duration_cast<std::chrono::milliseconds>(std::chrono::steady_clock::now() - begin));
    return !engine->Busy() && times.size() == 5;
  }));
  EXPECT_EQ(listener->Reports, (std::vector<std::string>{"mark 1 of 2", "mark 2 of 2", "mark 3 of 2",
                                                         "mark 4 of 2", "stopped 2"}));
  EXPECT_GT(times[1] - times[0], 200ms) << "reported when spoken, not when synthesized";
  EXPECT_GT(times[3] - times[1], 400ms);
}

TEST_F(EspeakHeardTest, ASoundServerThatDiesIsSurvived) {
  speaker->SpeakNow(LongText);
  ASSERT_TRUE(Heard());
  sound.Signal(SIGSTOP);
  EXPECT_LT(TimeOf([&] { speaker->SpeakNow("7"); }), Prompt);
  EXPECT_TRUE(Idle(6s)) << "a hung sound server does not keep it busy";
  sound.Signal(SIGKILL);
  EXPECT_LT(TimeOf([&] { speaker->SpeakNow("8"); }), Prompt);
  EXPECT_TRUE(Idle(6s));
}

}  // namespace
}  // namespace qves
