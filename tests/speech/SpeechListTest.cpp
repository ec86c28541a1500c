// The list, its engines and the reports, over back ends that only collect their texts.
#include <gtest/gtest.h>

#include "SpeechRig.h"
#include "speech/SpeechBackEnds.h"
#include "speech/SpeechList.h"

namespace qves {
namespace {

class FakeDriver : public SpeechDriver {
 public:
  explicit FakeDriver(DriverLinks links) : Links(std::move(links)) {}
  void Prepare() override {}
  std::vector<Voice> Voices() override {
    return {{{"Maker", "Product", "Voice " + std::to_string(Links.Number), 9}, "key", Links.Number}};
  }
  int MinimumPitch() const override { return 0; }
  int MaximumPitch() const override { return 100; }
  void Speak(Utterance text) override { Texts.push_back(std::move(text)); }
  void Interrupt() override {
    std::erase_if(Texts, [](const Utterance& text) { return text.Ticket.Outdated(); });
  }
  bool Usable() const override { return Up; }
  void PutDown() override { Up = false; }
  std::string All() const {
    std::string all;
    for (const Utterance& text : Texts) all += text.Text + "|";
    return all;
  }

  DriverLinks Links;
  std::vector<Utterance> Texts;
  bool Up = true;
};

class SpeechListTest : public testing::Test {
 protected:
  SpeechListTest() {
    for (const auto& driver : {&First, &Second}) {
      List->Add(
          [driver](DriverLinks links) {
            *driver = std::make_shared<FakeDriver>(std::move(links));
            return *driver;
          },
          driver == &First);
    }
    Engine = List->Open(1);
    Listener = std::make_unique<TestListener>(Engine.get());
    List->SetListener(Listener.get());
  }
  const std::vector<std::string>& Reports() {
    Pump.ProcessEvents(0);
    return Listener->Reports;
  }
  using Texts = std::vector<std::string>;

  TestPump Pump;
  std::unique_ptr<SpeechList> List = std::make_unique<SpeechList>(Pump);
  std::shared_ptr<FakeDriver> First;
  std::shared_ptr<FakeDriver> Second;
  std::unique_ptr<TtsEngine> Engine;
  std::unique_ptr<TestListener> Listener;
};

TEST_F(SpeechListTest, ABackEndThatStandsInIsNotListed) {
  EXPECT_EQ(List->Count(), 1);
  EXPECT_EQ(List->Item(1).VoiceName, "Voice 0");
  for (const int wrong : {0, 2, -1}) EXPECT_EQ(List->Open(wrong), nullptr);
  for (const int wrong : {0, 3}) EXPECT_EQ(Engine->Speaker(wrong), nullptr);
}

TEST_F(SpeechListTest, ASpeakerSilencesItsOwnTextsOnly) {
  Engine->Speaker(1)->SpeakQueued("other");
  Engine->Speaker(2)->SpeakNow("one");
  Engine->Speaker(2)->SpeakQueued("two\xff");
  EXPECT_EQ(First->All(), "other|one|two |");
  Engine->Speaker(2)->SpeakNow("three");
  EXPECT_EQ(First->All(), "other|three|");
  Engine->Speaker(2)->SpeakNow("");
  EXPECT_EQ(First->All(), "other|");
  EXPECT_FALSE(Engine->Speaker(2)->Busy());
  EXPECT_TRUE(Engine->Busy());
}

TEST_F(SpeechListTest, StoppedIsReportedOnceTheSpeakerIsIdle) {
  TtsSpeaker* speaker = Engine->Speaker(2);
  speaker->Stop();
  EXPECT_EQ(Reports(), Texts{});
  speaker->SpeakNow("one");
  speaker->SpeakNow("two");
  speaker->SpeakQueued("three");
  EXPECT_EQ(Reports(), Texts{});
  First->Texts.clear();
  EXPECT_EQ(Reports(), Texts{"stopped 2"});
  speaker->SpeakNow("four");
  First->Texts.clear();
  speaker->SpeakNow("five");  // before the report about "four" was delivered
  EXPECT_EQ(Reports(), Texts{"stopped 2"});
}

TEST_F(SpeechListTest, MarksOfOutdatedTextsAreNotReported) {
  const BookMark marks[] = {{1, 7}};
  Engine->Speaker(1)->SpeakNow("one", marks);
  First->Texts[0].Ticket.ReachMark(7);
  EXPECT_EQ(Reports(), Texts{"mark 7 of 1"});
  First->Texts[0].Ticket.ReachMark(8);
  Engine->Speaker(1)->SpeakNow("two");
  EXPECT_EQ(Reports(), Texts{"mark 7 of 1"});
}

TEST_F(SpeechListTest, NothingReachesWhatIsGone) {
  Engine->Speaker(2)->SpeakNow("one");
  First->Texts[0].Ticket.ReachMark(1);
  Engine.reset();
  EXPECT_EQ(First->All(), "");
  EXPECT_EQ(Reports(), Texts{});

  Engine = List->Open(1);
  Engine->Speaker(2)->SpeakNow("two");
  First->Texts[0].Ticket.ReachMark(1);
  List->SetListener(nullptr);
  List->SetListener(Listener.get());
  EXPECT_EQ(Reports(), Texts{});

  First->Texts[0].Ticket.ReachMark(1);
  First->Links.VoicesChanged();
  List.reset();
  EXPECT_EQ(Reports(), Texts{});
  Engine->Speaker(2)->SpeakNow("the list is gone");
  EXPECT_EQ(Reports(), Texts{});
}

TEST_F(SpeechListTest, ABackEndThatFailsHandsItsTextsOn) {
  TtsSpeaker* speaker = Engine->Speaker(2);
  speaker->SpeakQueued("one");
  speaker->SpeakQueued("two");
  First->Links.HandBack(std::exchange(First->Texts, {}));
  speaker->SpeakQueued("three");
  EXPECT_EQ(Second->All(), "one|two|three|");
  EXPECT_EQ(Reports(), Texts{});
  First->Up = true;
  speaker->SpeakNow("back");
  EXPECT_EQ(First->All() + Second->All(), "back|");
}

TEST_F(SpeechListTest, WithNoBackEndLeftThereIsSilence) {
  First->Up = Second->Up = false;
  Engine->Speaker(2)->SpeakNow("one");
  EXPECT_FALSE(Engine->Busy());
  EXPECT_EQ(Reports(), Texts{"stopped 2"});
}

TEST(SpeechBackEnds, OffIsAnEmptyList) {
  TestPump pump;
  const auto list = MakeSpeech(SpeechChoice::Off, pump);
  EXPECT_EQ(list->Count(), 0);
  EXPECT_EQ(list->Open(1), nullptr);
}

}  // namespace
}  // namespace qves
