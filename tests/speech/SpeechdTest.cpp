// speech-dispatcher, with a private server that writes down what it is to speak.
#include <gtest/gtest.h>
#include <signal.h>

#include "SpeechRig.h"
#include "speech/SpeechBackEnds.h"

namespace qves {
namespace {

using namespace std::chrono_literals;

class SpeechdTest : public testing::Test {
 protected:
  void SetUp() override {
    if (!PrivateSpeechServer::Installed() || !Sound.Ready())
      GTEST_SKIP() << "speech-dispatcher and pulseaudio are needed";
    List = MakeSpeech(SpeechChoice::SpeechDispatcher, Pump);
    Use("Speech Dispatcher", "default");
  }
  void Use(const std::string& manufacturer, const std::string& voice) {
    Engine = List->Open(Named(manufacturer, voice));
    ASSERT_NE(Engine, nullptr);
    Listener = std::make_unique<TestListener>(Engine.get());
    List->SetListener(Listener.get());
    Speaker = Engine->Speaker(2);
  }
  bool Spoken(const std::string& part) {
    return ReachedWithin(Pump, 8s, [&] { return Server.Spoken().find(part) != std::string::npos; });
  }
  bool Idle(std::chrono::milliseconds longest = 8s) {
    return ReachedWithin(Pump, longest, [&] { return !Engine->Busy(); });
  }

  PrivateDesktop Desktop;
  PrivateSound Sound{Desktop};
  PrivateSpeechServer Server{Desktop};
  TestPump Pump;
  std::unique_ptr<TestListener> Listener;
  std::unique_ptr<TTS> List;
  std::unique_ptr<TtsEngine> Engine;
  TtsSpeaker* Speaker = nullptr;
};

TEST_F(SpeechdTest, SpeaksInOrderAndInterrupts) {
  EXPECT_LT(TimeOf([&] { Speaker->SpeakNow("one"); }), Prompt);
  Speaker->SpeakQueued("two & <b>");
  Speaker->SpeakQueued(".");  // which alone in its line ends a text on its way to the server
  EXPECT_TRUE(Idle());
  EXPECT_EQ(Server.Spoken(), "one|two & <b>|.|");
  Speaker->SpeakNow("three");
  EXPECT_TRUE(Spoken("three"));
  Speaker->SpeakQueued("never");
  Speaker->SpeakNow("four");
  EXPECT_TRUE(Idle());
  EXPECT_EQ(Server.Spoken(), "one|two & <b>|.|three|four|");
  for (int i = 0; i < 200; ++i) Speaker->SpeakNow("key " + std::to_string(i));
  EXPECT_TRUE(Idle()) << "the interrupted texts were dropped";
  EXPECT_TRUE(Server.Spoken().ends_with("key 199|"));
}

TEST_F(SpeechdTest, SentenceMarksComeAsTheSentencesBegin) {
  const BookMark marks[] = {{0, 1}, {5, 2}, {10, 3}};
  Speaker->SpeakNow("One. Two. Three.", marks);
  EXPECT_TRUE(ReachedWithin(Pump, 8s, [&] { return Listener->Reports.size() == 4; }));
  EXPECT_EQ(Listener->Reports,
            (std::vector<std::string>{"mark 1 of 2", "mark 2 of 2", "mark 3 of 2", "stopped 2"}));
}

TEST_F(SpeechdTest, TheListGrowsByTheModulesVoices) {
  ASSERT_TRUE(ReachedWithin(Pump, 8s, [&] { return List->Engines().size() == 1; }));
  EXPECT_EQ(List->Engines()[0], (TtsEngineInfo{"Speech Dispatcher", "speech-dispatcher", "default", 9}));
  ASSERT_TRUE(ReachedWithin(Pump, 8s, [&] { return List->Engines().size() > 1; }));
  EXPECT_EQ(Find(*List, "capture", "second"), (TtsEngineInfo{"capture", "capture", "second", 7}));
  Use("capture", "second");
  Engine->SetSpeed(300);
  Engine->SetPitch(20);
  Speaker->SpeakNow("eins");
  EXPECT_TRUE(Spoken("eins"));
}

TEST_F(SpeechdTest, AServerKilledInMidWordIsReplaced) {
  Speaker->SpeakNow("before");
  ASSERT_TRUE(Spoken("before"));
  Server.Signal(SIGKILL);
  EXPECT_LT(TimeOf([&] { Speaker->SpeakQueued("after"); }), Prompt);
  EXPECT_TRUE(Spoken("after"));
  EXPECT_TRUE(Idle());
  Server.Signal(SIGKILL);
  Speaker->SpeakNow("once more");
  EXPECT_TRUE(Spoken("once more"));
}

TEST_F(SpeechdTest, WhoStandsInForADeadServerGoesOnWhereItStopped) {
  const BookMark marks[] = {{0, 1}, {5, 2}, {10, 3}, {17, 4}};
  Speaker->SpeakNow("One. Two. Three. Four.", marks);
  ASSERT_TRUE(Spoken("Two"));
  ASSERT_TRUE(ReachedWithin(Pump, 2s, [&] { return Listener->Reports.size() == 2; }));
  Server.Remove();
  Server.Signal(SIGKILL);
  EXPECT_TRUE(Idle(15s));
  Pump.ProcessEvents(0);
  EXPECT_EQ(Listener->Reports, (std::vector<std::string>{"mark 1 of 2", "mark 2 of 2", "mark 2 of 2",
                                                         "mark 3 of 2", "mark 4 of 2", "stopped 2"}));
}

TEST_F(SpeechdTest, AServerThatHangsHoldsNobodyUpAndMayComeBack) {
  Speaker->SpeakNow("before");
  ASSERT_TRUE(Spoken("before"));
  Server.Signal(SIGSTOP);
  for (int i = 0; i < 50; ++i) EXPECT_LT(TimeOf([&] { Speaker->SpeakNow("hung"); }), Prompt);
  EXPECT_LT(TimeOf([&] { Speaker->Stop(); }), Prompt);
  Speaker->SpeakNow("elsewhere");
  EXPECT_TRUE(Idle(15s)) << "another back end takes over, or there is silence";
  Server.Signal(SIGCONT);
  EXPECT_TRUE(ReachedWithin(Pump, 8s, [&] {
    Speaker->SpeakNow("again");
    Idle(1s);
    return Server.Spoken().ends_with("again|");
  }));
}

TEST_F(SpeechdTest, IsLeftAtOnceAlsoWhenTheServerHangs) {
  Speaker->SpeakNow("before");
  ASSERT_TRUE(Spoken("before"));
  Server.Signal(SIGSTOP);
  Speaker->SpeakNow("hung");
  EXPECT_LT(TimeOf([&] {
              Engine.reset();
              List.reset();
            }),
            2 * Prompt);
}

TEST_F(SpeechdTest, AServerThatHangsWhileItListsItsVoicesDelaysNoMoreThanUsual) {
  Speaker->SpeakNow("before");
  ASSERT_TRUE(Spoken("before"));
  ASSERT_TRUE(Idle());
  Server.Signal(SIGSTOP);
  ReachedWithin(Pump, 1200ms, [] { return false; });  // the list has been asked for by then
  Speaker->SpeakNow("7");
  EXPECT_TRUE(ReachedWithin(Pump, 2500ms, [&] { return Sound.LoudestOfLast(300ms) > 500; }));
  EXPECT_TRUE(Idle(2s));
}

TEST(SpeechdMissingTest, TheCallsReturnAndBusyEnds) {
  PrivateDesktop desktop;
  desktop.Environment().Set("SPEECHD_CMD", "/nonexistent/server");
  TestPump pump;
  const auto list = MakeSpeech(SpeechChoice::SpeechDispatcher, pump);
  const auto engine = list->Open([](const auto&) { return 1; });
  EXPECT_LT(TimeOf([&] { engine->Speaker(2)->SpeakNow("nobody there"); }), Prompt);
  EXPECT_TRUE(ReachedWithin(pump, 5s, [&] { return !engine->Busy(); }));
}

}  // namespace
}  // namespace qves
