#include "terminal/RecordingTts.h"

#include <utility>

namespace qves {
namespace {

/// Records what it is asked. Only speaker 2 does: speaker 1 never speaks, so its stop silences nothing.
class RecordingSpeaker : public TtsSpeaker {
 public:
  RecordingSpeaker(Transcript* record, RecordedReading& reading, TtsSpeaker* real)
      : Record(record), Reading(reading), Real(real) {}

  void SpeakNow(std::string_view text, std::span<const BookMark> marks) override {
    Note("now", text);
    Begin(marks);
    if (Real) Real->SpeakNow(text, marks);
  }
  void SpeakQueued(std::string_view text, std::span<const BookMark> marks) override {
    Note("queued", text);
    if (!marks.empty()) Begin(marks);
    if (Real) Real->SpeakQueued(text, marks);
  }
  void Stop() override {
    Note("stop", "");
    Begin({});
    if (Real) Real->Stop();
  }
  bool Busy() const override { return Real && Real->Busy(); }

 private:
  void Note(std::string_view how, std::string_view text) {
    if (Record) Record->push_back({how, std::string(text)});
  }

  /// A text without marks counts as finished at once. What a real speech engine reads it reports itself.
  void Begin(std::span<const BookMark> marks) {
    if (!Record || Real) return;
    Reading = {};
    if (!marks.empty()) Reading.Speaker = this;
    for (const BookMark& mark : marks) Reading.Marks.push_back(mark.Number);
  }

  Transcript* Record;
  RecordedReading& Reading;
  TtsSpeaker* Real;
};

class RecordingEngine : public TtsEngine {
 public:
  RecordingEngine(Transcript& record, RecordedReading& reading, std::unique_ptr<TtsEngine> real)
      : Reading(reading),
        Real(std::move(real)),
        First(nullptr, reading, Real ? Real->Speaker(1) : nullptr),
        Second(&record, reading, Real ? Real->Speaker(2) : nullptr) {}
  ~RecordingEngine() override { Reading = {}; }

  bool Initialise() override { return !Real || Real->Initialise(); }
  void SetSpeed(int speed) override {
    if (Real) Real->SetSpeed(speed);
  }
  void SetVolume(std::int32_t volume) override {
    if (Real) Real->SetVolume(volume);
  }
  void SetPitch(int pitch) override {
    if (Real) Real->SetPitch(pitch);
  }
  int MinimumPitch() const override { return Real ? Real->MinimumPitch() : 0; }
  int MaximumPitch() const override { return Real ? Real->MaximumPitch() : 100; }
  TtsSpeaker* Speaker(int number) override { return number == 1 ? &First : number == 2 ? &Second : nullptr; }
  bool Busy() const override { return Real && Real->Busy(); }

 private:
  RecordedReading& Reading;
  std::unique_ptr<TtsEngine> Real;
  RecordingSpeaker First;
  RecordingSpeaker Second;
};

}  // namespace

std::vector<TtsEngineInfo> RecordingTts::Engines() const {
  if (Real) return Real->Engines();
  return {{"QVES", "transcript", "transcript", 9}};
}

std::unique_ptr<TtsEngine> RecordingTts::Open(TtsChooser choose) {
  auto real = Real ? Real->Open(std::move(choose)) : nullptr;
  if (Real && !real) return nullptr;
  return std::make_unique<RecordingEngine>(Record, Reading, std::move(real));
}

void RecordingTts::ReadOn(std::optional<int> marks) {
  for (int told = 0; Reading.Speaker && !Reading.Marks.empty() && (!marks || told < *marks); ++told) {
    const std::int32_t mark = Reading.Marks.front();
    Reading.Marks.erase(Reading.Marks.begin());
    if (Listener) Listener->BookMarkReached(mark, *Reading.Speaker);
  }
  if (marks || !Reading.Speaker) return;
  TtsSpeaker& speaker = *std::exchange(Reading, {}).Speaker;
  if (Listener) Listener->SpeechStopped(speaker);
}

void RecordingTts::SetListener(TtsListener* listener) {
  Listener = listener;
  if (Real) Real->SetListener(listener);
}

}  // namespace qves
