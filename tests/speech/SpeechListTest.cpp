// The list, its queue and the reports, over back ends that only note their texts.
#include <gtest/gtest.h>

#include <atomic>

#include "SpeechRig.h"
#include "speech/SpeechBackEnds.h"
#include "speech/SpeechList.h"
#include "speech/SpeechText.h"

namespace qves {
namespace {

using namespace std::chrono_literals;
using Texts = std::vector<std::string>;

/// What a back end has done and is to do.
class Stage {
 public:
  std::atomic<bool> Silent = false;     ///< the library has not read its voices yet
  std::atomic<bool> Fails = false;      ///< having spoken the first 4 bytes
  std::atomic<bool> Holds = false;      ///< a text is played until it is stopped or this ends
  std::atomic<bool> ListsMore = false;  ///< one more voice is known from the next rest on
  std::atomic<int> NextMark = 0;        ///< it is reached while a text is held

  void Note(const std::string& what) {
    const std::lock_guard lock(Mutex);
    Played.push_back(what);
  }
  Texts All() const {
    const std::lock_guard lock(Mutex);
    return Played;
  }

 private:
  mutable std::mutex Mutex;
  Texts Played;
};

class FakeBackEnd : public SpeechBackEnd {
 public:
  FakeBackEnd(std::string name, Stage& stage) : Name(std::move(name)), Does(stage) { AddVoice("1"); }

  const std::vector<Voice>& Voices() override {
    while (Does.Silent) std::this_thread::sleep_for(1ms);
    return Known;
  }
  bool Play(Utterance& text, Playing& playing) override {
    if (Does.Fails) return DropFront(text, 4), false;
    Does.Note(text.Speaking.Info.VoiceName + ": " + text.Text);
    while (Does.Holds && !playing.Stopped()) {
      if (const int mark = Does.NextMark.exchange(0)) playing.ReachMark(mark);
      playing.Changed.Clear();
      playing.Changed.Wait(SteadyClock::now() + 1ms);
    }
    return true;
  }
  TimePoint Rest() override {
    if (Does.ListsMore.exchange(false)) AddVoice("2");
    return SteadyClock::now() + 1ms;
  }

 private:
  void AddVoice(const char* number) {
    Voice& voice = Known.emplace_back();
    voice.Info = {"Maker", "Product", Name + number, 9};
    voice.Owner = this;
  }

  std::string Name;
  Stage& Does;
  std::vector<Voice> Known;
};

/// The voice with this name, else the first.
TtsChooser ByName(const std::string& name) {
  return [name](const std::vector<TtsEngineInfo>& engines) {
    for (std::size_t i = 0; i < engines.size(); ++i)
      if (engines[i].VoiceName == name) return int(i) + 1;
    return 1;
  };
}

class SpeechListTest : public testing::Test {
 protected:
  void Open(const std::string& voice = "first1") {
    Engine = List->Open(ByName(voice));
    Listener = std::make_unique<TestListener>(Engine.get());
    List->SetListener(Listener.get());
  }
  void SetUp() override {
    Make();
    Open();
    ASSERT_TRUE(ReachedWithin(Pump, 5s, [&] { return !List->Engines().empty(); }));
  }
  void Make() {
    auto queue = std::make_shared<SpeechQueue>(Pump);
    queue->Add(std::make_unique<FakeBackEnd>("first", First), true);
    queue->Add(std::make_unique<FakeBackEnd>("second", Second), false);
    List = MakeSpeechList(std::move(queue));
  }
  bool Idle() {
    return ReachedWithin(Pump, 5s, [&] { return !Engine->Busy(); });
  }
  testing::AssertionResult Played(const Stage& stage, const Texts& texts) {
    ReachedWithin(Pump, 2s, [&] { return stage.All() == texts; });
    if (stage.All() == texts) return testing::AssertionSuccess();
    return testing::AssertionFailure() << testing::PrintToString(stage.All());
  }
  const Texts& Reports() {
    Pump.ProcessEvents(0);
    return Listener->Reports;
  }

  Stage First;
  Stage Second;
  TestPump Pump;
  std::unique_ptr<TTS> List;
  std::unique_ptr<TtsEngine> Engine;
  std::unique_ptr<TestListener> Listener;
};

TEST_F(SpeechListTest, ABackEndThatStandsInIsNotListed) {
  ASSERT_EQ(List->Engines().size(), 1U);
  EXPECT_EQ(List->Engines()[0].VoiceName, "first1");
  for (const int wrong : {0, 3}) EXPECT_EQ(Engine->Speaker(wrong), nullptr);
  List->SetListener(nullptr);  // it knows the first engine only
  for (const int wrong : {-1, 0, 2}) {
    Engine = List->Open([wrong](const auto&) { return wrong; });
    Engine->Speaker(2)->SpeakNow("unheard");
    EXPECT_TRUE(Idle());
  }
  EXPECT_EQ(First.All(), Texts{});
}

TEST_F(SpeechListTest, ASpeakerSilencesItsOwnTextsOnly) {
  First.Holds = true;
  Engine->Speaker(1)->SpeakQueued("other");
  Engine->Speaker(2)->SpeakNow("one");
  Engine->Speaker(2)->SpeakQueued("two");
  Engine->Speaker(2)->SpeakNow("three\xff");
  EXPECT_TRUE(Played(First, {"first1: other"}));
  First.Holds = false;
  EXPECT_TRUE(Played(First, {"first1: other", "first1: three "}));
  EXPECT_TRUE(Idle());
  First.Holds = true;
  Engine->Speaker(1)->SpeakQueued("more");
  Engine->Speaker(2)->SpeakQueued("never");
  Engine->Speaker(2)->SpeakNow("");
  EXPECT_FALSE(Engine->Speaker(2)->Busy());
  EXPECT_TRUE(Engine->Busy());
}

TEST_F(SpeechListTest, StoppedIsReportedOnceTheSpeakerIsIdle) {
  TtsSpeaker* speaker = Engine->Speaker(2);
  speaker->Stop();
  EXPECT_EQ(Reports(), Texts{});
  First.Holds = true;
  speaker->SpeakNow("one");
  speaker->SpeakNow("two");
  speaker->SpeakQueued("three");
  EXPECT_TRUE(Played(First, {"first1: two"}) || Played(First, {"first1: one", "first1: two"}));
  EXPECT_EQ(Reports(), Texts{});
  First.Holds = false;
  EXPECT_TRUE(Idle());
  EXPECT_TRUE(ReachedWithin(Pump, 1s, [&] { return Reports() == Texts{"stopped 2"}; }));
  First.Holds = true;
  speaker->SpeakNow("four");
  speaker->SpeakQueued("five");
  speaker->Stop();
  EXPECT_TRUE(ReachedWithin(Pump, 1s, [&] { return Reports() == Texts{"stopped 2", "stopped 2"}; }));
}

TEST_F(SpeechListTest, MarksOfOutdatedTextsAreNotReported) {
  First.Holds = true;
  Engine->Speaker(1)->SpeakNow("one");
  First.NextMark = 7;
  EXPECT_TRUE(ReachedWithin(Pump, 1s, [&] { return Reports() == Texts{"mark 7 of 1"}; }));
  First.NextMark = 8;
  while (First.NextMark != 0) std::this_thread::sleep_for(1ms);
  std::this_thread::sleep_for(5ms);  // it is on its way, and not delivered yet
  Engine->Speaker(1)->SpeakNow("two");
  EXPECT_TRUE(Played(First, {"first1: one", "first1: two"}));
  EXPECT_EQ(Reports(), Texts{"mark 7 of 1"});
}

TEST_F(SpeechListTest, NothingReachesWhatIsGone) {
  First.Holds = true;
  const auto reachMark = [this] {
    Engine->Speaker(2)->SpeakNow("text");
    First.NextMark = 1;
    while (First.NextMark != 0) std::this_thread::sleep_for(1ms);
    std::this_thread::sleep_for(5ms);
  };
  reachMark();
  Engine.reset();
  EXPECT_EQ(Reports(), Texts{});

  Open();
  reachMark();
  List->SetListener(nullptr);
  List->SetListener(Listener.get());
  EXPECT_EQ(Reports(), Texts{});

  reachMark();
  List.reset();
  EXPECT_EQ(Reports(), Texts{});
  Engine->Speaker(2)->SpeakNow("the list is gone");
  EXPECT_EQ(Reports(), Texts{});
}

TEST_F(SpeechListTest, ABackEndThatFailsHandsItsTextsOn) {
  First.Fails = true;
  const BookMark marks[] = {{0, 1}, {4, 2}};
  Engine->Speaker(2)->SpeakQueued("one two", marks);
  Engine->Speaker(2)->SpeakQueued("three");
  EXPECT_TRUE(Played(Second, {"second1: two", "second1: e"}));
  First.Fails = false;
  Engine->Speaker(2)->SpeakNow("back");
  EXPECT_TRUE(Played(First, {"first1: back"}));
  EXPECT_TRUE(Idle());
  First.Fails = Second.Fails = true;
  Engine->Speaker(2)->SpeakNow("nobody");
  EXPECT_TRUE(Idle());
}

TEST_F(SpeechListTest, ASlowStartHoldsNobodyUpAndTheChosenVoiceSpeaks) {
  List.reset();
  First.Silent = true;
  First.ListsMore = false;
  Make();
  EXPECT_LT(TimeOf([&] {
              Open("first1");
              EXPECT_TRUE(List->Engines().empty());
              Engine->Speaker(2)->SpeakNow("one");
              Engine->Speaker(2)->SpeakQueued("two");
            }),
            Prompt);
  EXPECT_TRUE(Engine->Busy());
  First.Silent = false;
  EXPECT_TRUE(Played(First, {"first1: one", "first1: two"}));
}

TEST_F(SpeechListTest, AVoiceThatIsFoundLaterIsTakenWithTheNextTextThatInterrupts) {
  Open("first2");
  First.Holds = true;
  Engine->Speaker(2)->SpeakNow("a reading");
  ASSERT_TRUE(Played(First, {"first1: a reading"}));
  Engine->Speaker(2)->SpeakQueued("its end");
  First.Holds = false;
  First.ListsMore = true;
  ASSERT_TRUE(ReachedWithin(Pump, 2s, [&] { return List->Engines().size() == 2; }));
  EXPECT_TRUE(Played(First, {"first1: a reading", "first1: its end"}));
  Engine->Speaker(2)->SpeakQueued("more of it");
  Engine->Speaker(2)->SpeakQueued("still more");
  EXPECT_TRUE(Idle());
  Engine->Speaker(2)->SpeakNow("a key");
  EXPECT_TRUE(Played(First, {"first1: a reading", "first1: its end", "first1: more of it",
                             "first1: still more", "first2: a key"}));
}

TEST(SpeechBackEnds, OffIsAnEmptyListAndSilence) {
  TestPump pump;
  const auto list = MakeSpeech(SpeechChoice::Off, pump);
  EXPECT_TRUE(list->Engines().empty());
  const auto engine = list->Open([](const auto&) { return 1; });
  engine->Speaker(1)->SpeakNow("unheard");
  EXPECT_TRUE(ReachedWithin(pump, 5s, [&] { return !engine->Busy(); }));
}

}  // namespace
}  // namespace qves
