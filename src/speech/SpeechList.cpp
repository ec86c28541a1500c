#include "speech/SpeechList.h"

#include <pthread.h>

#include <chrono>
#include <future>
#include <thread>
#include <utility>

namespace qves {
namespace {

constexpr auto LongestFarewell = std::chrono::milliseconds(50);

/// A voice and its settings, which an engine's two speakers share: their texts are spoken one after another.
struct EngineState {
  std::shared_ptr<SpeechQueue> Queue;
  std::shared_ptr<EngineVoice> Voice;
  VoiceSettings Settings = {};
};

class SpeechSpeaker : public TtsSpeaker {
 public:
  explicit SpeechSpeaker(const EngineState& engine) : Engine(engine) { Record->Speaker = this; }
  ~SpeechSpeaker() override {
    Record->Speaker = nullptr;
    Engine.Queue->Silence(Record);
  }
  SpeechSpeaker(const SpeechSpeaker&) = delete;
  SpeechSpeaker& operator=(const SpeechSpeaker&) = delete;

  void SpeakNow(std::string_view text, std::span<const BookMark> marks) override {
    text.empty() ? Stop() : Speak(text, marks, true);
  }
  void SpeakQueued(std::string_view text, std::span<const BookMark> marks) override {
    if (!text.empty()) Speak(text, marks, false);
  }
  void Stop() override { Engine.Queue->Silence(Record); }
  bool Busy() const override { return Engine.Queue->Busy(*Record); }

 private:
  void Speak(std::string_view text, std::span<const BookMark> marks, bool interrupts) {
    Utterance what{{std::string(text), {marks.begin(), marks.end()}}, Engine.Settings, {}};
    Engine.Queue->Speak({std::move(what), Engine.Voice, Record, interrupts});
  }

  const EngineState& Engine;
  std::shared_ptr<SpeakerRecord> Record = std::make_shared<SpeakerRecord>();
};

class SpeechEngine : public TtsEngine {
 public:
  SpeechEngine(std::shared_ptr<SpeechQueue> queue, TtsChooser choose)
      : State{std::move(queue), std::make_shared<EngineVoice>(EngineVoice{std::move(choose)})} {}
  bool Initialise() override { return true; }
  void SetSpeed(int wordsPerMinute) override { State.Settings.WordsPerMinute = wordsPerMinute; }
  void SetVolume(std::int32_t volume) override { State.Settings.Volume = volume; }
  void SetPitch(int pitch) override { State.Settings.Pitch = pitch; }
  int MinimumPitch() const override { return PitchScale.From; }
  int MaximumPitch() const override { return PitchScale.To; }
  TtsSpeaker* Speaker(int number) override { return number == 1 ? &First : number == 2 ? &Second : nullptr; }
  bool Busy() const override { return First.Busy() || Second.Busy(); }

 private:
  EngineState State;
  SpeechSpeaker First{State};
  SpeechSpeaker Second{State};
};

class SpeechList : public TTS {
 public:
  explicit SpeechList(std::shared_ptr<SpeechQueue> queue) : Queue(std::move(queue)) {
    std::packaged_task<void()> run([of = Queue] { of->Run(); });
    Ended = run.get_future();
    std::thread thread(std::move(run));
    pthread_setname_np(thread.native_handle(), "speech");
    thread.detach();
  }
  ~SpeechList() override {
    Queue->Close();
    Ended.wait_for(LongestFarewell);
  }
  SpeechList(const SpeechList&) = delete;
  SpeechList& operator=(const SpeechList&) = delete;

  std::vector<TtsEngineInfo> Engines() const override { return Queue->Engines(); }
  // A list that is still to be read may hold what is wanted, so this one is not looked at.
  std::unique_ptr<TtsEngine> Open(TtsChooser choose) override {
    return std::make_unique<SpeechEngine>(Queue, std::move(choose));
  }
  void SetListener(TtsListener* listener) override { Queue->SetListener(listener); }

 private:
  std::shared_ptr<SpeechQueue> Queue;
  std::future<void> Ended;
};

}  // namespace

std::unique_ptr<TTS> MakeSpeechList(std::shared_ptr<SpeechQueue> queue) {
  return std::make_unique<SpeechList>(std::move(queue));
}

}  // namespace qves
