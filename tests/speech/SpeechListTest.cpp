// The list, its engines and the reports, over back ends that only collect their texts.
#include <gtest/gtest.h>

#include "SpeechRig.h"
#include "speech/SpeechBackEnds.h"
#include "speech/SpeechList.h"

namespace qves {
namespace {

class FakeDriver : public SpeechDriver {
 public:
  explicit FakeDriver(DriverLinks driverLinks) : Links(std::move(driverLinks)) {}
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
    for (const auto& driver : {&first, &second}) {
      list->Add(
          [driver](DriverLinks links) {
            *driver = std::make_shared<FakeDriver>(std::move(links));
            return *driver;
          },
          driver == &first);
    }
    engine = list->Open(1);
    listener = std::make_unique<TestListener>(engine.get());
    list->SetListener(listener.get());
  }
  const std::vector<std::string>& Reports() {
    pump.ProcessEvents(0);
    return listener->Reports;
  }
  using Texts = std::vector<std::string>;

  TestPump pump;
  std::unique_ptr<SpeechList> list = std::make_unique<SpeechList>(pump);
  std::shared_ptr<FakeDriver> first;
  std::shared_ptr<FakeDriver> second;
  std::unique_ptr<TtsEngine> engine;
  std::unique_ptr<TestListener> listener;
};

TEST_F(SpeechListTest, ABackEndThatStandsInIsNotListed) {
  EXPECT_EQ(list->Count(), 1);
  EXPECT_EQ(list->Item(1).VoiceName, "Voice 0");
  for (const int wrong : {0, 2, -1}) EXPECT_EQ(list->Open(wrong), nullptr);
  for (const int wrong : {0, 3}) EXPECT_EQ(engine->Speaker(wrong), nullptr);
}

TEST_F(SpeechListTest, ASpeakerSilencesItsOwnTextsOnly) {
  engine->Speaker(1)->SpeakQueued("other");
  engine->Speaker(2)->SpeakNow("one");
  engine->Speaker(2)->SpeakQueued("two\xff");
  EXPECT_EQ(first->All(), "other|one|two |");
  engine->Speaker(2)->SpeakNow("three");
  EXPECT_EQ(first->All(), "other|three|");
  engine->Speaker(2)->SpeakNow("");
  EXPECT_EQ(first->All(), "other|");
  EXPECT_FALSE(engine->Speaker(2)->Busy());
  EXPECT_TRUE(engine->Busy());
}

TEST_F(SpeechListTest, StoppedIsReportedOnceTheSpeakerIsIdle) {
  TtsSpeaker* speaker = engine->Speaker(2);
  speaker->Stop();
  EXPECT_EQ(Reports(), Texts{});
  speaker->SpeakNow("one");
  speaker->SpeakNow("two");
  speaker->SpeakQueued("three");
  EXPECT_EQ(Reports(), Texts{});
  first->Texts.clear();
  EXPECT_EQ(Reports(), Texts{"stopped 2"});
  speaker->SpeakNow("four");
  first->Texts.clear();
  speaker->SpeakNow("five");  // before the report about "four" was delivered
  EXPECT_EQ(Reports(), Texts{"stopped 2"});
}

TEST_F(SpeechListTest, MarksOfOutdatedTextsAreNotReported) {
  const BookMark marks[] = {{1, 7}};
  engine->Speaker(1)->SpeakNow("one", marks);
  first->Texts[0].Ticket.ReachMark(7);
  EXPECT_EQ(Reports(), Texts{"mark 7 of 1"});
  first->Texts[0].Ticket.ReachMark(8);
  engine->Speaker(1)->SpeakNow("two");
  EXPECT_EQ(Reports(), Texts{"mark 7 of 1"});
}

TEST_F(SpeechListTest, NothingReachesWhatIsGone) {
  engine->Speaker(2)->SpeakNow("one");
  first->Texts[0].Ticket.ReachMark(1);
  engine.reset();
  EXPECT_EQ(first->All(), "");
  EXPECT_EQ(Reports(), Texts{});

  engine = list->Open(1);
  engine->Speaker(2)->SpeakNow("two");
  first->Texts[0].Ticket.ReachMark(1);
  list->SetListener(nullptr);
  list->SetListener(listener.get());
  EXPECT_EQ(Reports(), Texts{});

  first->Texts[0].Ticket.ReachMark(1);
  first->Links.VoicesChanged();
  list.reset();
  EXPECT_EQ(Reports(), Texts{});
  engine->Speaker(2)->SpeakNow("the list is gone");
  EXPECT_EQ(Reports(), Texts{});
}

TEST_F(SpeechListTest, ABackEndThatFailsHandsItsTextsOn) {
  TtsSpeaker* speaker = engine->Speaker(2);
  speaker->SpeakQueued("one");
  speaker->SpeakQueued("two");
  first->Links.HandBack(std::exchange(first->Texts, {}));
  speaker->SpeakQueued("three");
  EXPECT_EQ(second->All(), "one|two|three|");
  EXPECT_EQ(Reports(), Texts{});
  first->Up = true;
  speaker->SpeakNow("back");
  EXPECT_EQ(first->All() + second->All(), "back|");
}

TEST_F(SpeechListTest, WithNoBackEndLeftThereIsSilence) {
  first->Up = second->Up = false;
  engine->Speaker(2)->SpeakNow("one");
  EXPECT_FALSE(engine->Busy());
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
