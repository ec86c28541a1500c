// speech-dispatcher, with a private server that writes down what it is to speak.
#include <gtest/gtest.h>
#include <signal.h>

#include "SpeechRig.h"
#include "speech/SpeechBackEnds.h"

namespace qves {
namespace {

using namespace std::chrono_literals;

constexpr auto Prompt = 250ms;  // for calls that return at once, on a machine that may be busy

class SpeechdTest : public testing::Test {
 protected:
  void SetUp() override {
    if (!PrivateSpeechServer::Installed() || !sound.Ready())
      GTEST_SKIP() << "speech-dispatcher and pulseaudio are needed";
    list = MakeSpeech(SpeechChoice::SpeechDispatcher, pump);
    Use(1);
  }
  void Use(int number) {
    engine = list->Open(number);
    ASSERT_NE(engine, nullptr);
    listener = std::make_unique<TestListener>(engine.get());
    list->SetListener(listener.get());
    speaker = engine->Speaker(2);
  }
  bool Spoken(const std::string& part) {
    return ReachedWithin(pump, 8s, [&] { return server.Spoken().find(part) != std::string::npos; });
  }
  bool Idle(std::chrono::milliseconds longest = 8s) {
    return ReachedWithin(pump, longest, [&] { return !engine->Busy(); });
  }

  PrivateDesktop desktop;
  PrivateSound sound{desktop};
  PrivateSpeechServer server{desktop};
  TestPump pump;
  std::unique_ptr<TestListener> listener;
  std::unique_ptr<TTS> list;
  std::unique_ptr<TtsEngine> engine;
  TtsSpeaker* speaker = nullptr;
};

TEST_F(SpeechdTest, SpeaksInOrderAndInterrupts) {
  EXPECT_LT(TimeOf([&] { speaker->SpeakNow("one"); }), Prompt);
  speaker->SpeakQueued("two & <b>");
  EXPECT_TRUE(Idle());
  EXPECT_EQ(server.Spoken(), "one|two & <b>|");
  speaker->SpeakNow("three");
  EXPECT_TRUE(Spoken("three"));
  speaker->SpeakQueued("never");
  speaker->SpeakNow("four");
  EXPECT_TRUE(Idle());
  EXPECT_EQ(server.Spoken(), "one|two & <b>|three|four|");
  for (int i = 0; i < 200; ++i) speaker->SpeakNow("key " + std::to_string(i));
  EXPECT_TRUE(Idle()) << "the interrupted texts were dropped";
  EXPECT_TRUE(server.Spoken().ends_with("key 199|"));
}

TEST_F(SpeechdTest, SentenceMarksComeAsTheSentencesBegin) {
  const BookMark marks[] = {{0, 1}, {5, 2}, {10, 3}};
  speaker->SpeakNow("One. Two. Three.", marks);
  EXPECT_TRUE(ReachedWithin(pump, 8s, [&] { return listener->Reports.size() == 4; }));
  EXPECT_EQ(listener->Reports,
            (std::vector<std::string>{"mark 1 of 2", "mark 2 of 2", "mark 3 of 2", "stopped 2"}));
}

TEST_F(SpeechdTest, TheListGrowsByTheModulesVoices) {
  EXPECT_EQ(list->Count(), 1);
  EXPECT_EQ(list->Item(1).Manufacturer, "Speech Dispatcher");
  EXPECT_EQ(list->Item(1).Product, "speech-dispatcher");
  EXPECT_EQ(list->Item(1).VoiceName, "default");
  EXPECT_EQ(list->Item(1).LanguageId, 9);
  ASSERT_TRUE(ReachedWithin(pump, 8s, [&] { return !listener->Reports.empty(); }));
  EXPECT_EQ(listener->Reports.front(), "list");
  const int second = FindEngine(*list, "capture", "second");
  ASSERT_GT(second, 1);
  EXPECT_EQ(list->Item(second).LanguageId, 7);
  Use(second);
  engine->SetSpeed(300);
  engine->SetPitch(20);
  speaker->SpeakNow("eins");
  EXPECT_TRUE(Spoken("eins"));
}

TEST_F(SpeechdTest, AServerKilledInMidWordIsReplaced) {
  speaker->SpeakNow("before");
  ASSERT_TRUE(Spoken("before"));
  server.Signal(SIGKILL);
  EXPECT_LT(TimeOf([&] { speaker->SpeakQueued("after"); }), Prompt);
  EXPECT_TRUE(Spoken("after"));
  EXPECT_TRUE(Idle());
  server.Signal(SIGKILL);
  speaker->SpeakNow("once more");
  EXPECT_TRUE(Spoken("once more"));
}

TEST_F(SpeechdTest, AServerThatHangsHoldsNobodyUpAndMayComeBack) {
  speaker->SpeakNow("before");
  ASSERT_TRUE(Spoken("before"));
  server.Signal(SIGSTOP);
  for (int i = 0; i < 50; ++i) EXPECT_LT(TimeOf([&] { speaker->SpeakNow("hung"); }), Prompt);
  EXPECT_LT(TimeOf([&] { speaker->Stop(); }), Prompt);
  speaker->SpeakNow("elsewhere");
  EXPECT_TRUE(Idle(15s)) << "another back end takes over, or there is silence";
  server.Signal(SIGCONT);
  EXPECT_TRUE(ReachedWithin(pump, 8s, [&] {
    speaker->SpeakNow("again");
    Idle(1s);
    return server.Spoken().ends_with("again|");
  }));
}

TEST_F(SpeechdTest, IsLeftAtOnceAlsoWhenTheServerHangs) {
  speaker->SpeakNow("before");
  ASSERT_TRUE(Spoken("before"));
  server.Signal(SIGSTOP);
  speaker->SpeakNow("hung");
  EXPECT_LT(TimeOf([&] {
              engine.reset();
              list.reset();
            }),
            500ms);
}

TEST_F(SpeechdTest, WithoutAServerTheCallsReturnAndBusyEnds) {
  desktop.Environment().Set("SPEECHD_ADDRESS", "unix_socket:/nonexistent/socket");
  desktop.Environment().Set("PATH", "/nonexistent");
  desktop.Environment().Set("SPEECHD_CMD", "/nonexistent/server");
  list = MakeSpeech(SpeechChoice::SpeechDispatcher, pump);
  Use(1);
  EXPECT_LT(TimeOf([&] { speaker->SpeakNow("nobody there"); }), Prompt);
  EXPECT_TRUE(Idle(15s));
}

}  // namespace
}  // namespace qves
