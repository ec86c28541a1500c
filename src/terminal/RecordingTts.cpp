#include "terminal/RecordingTts.h"

#include <utility>

namespace qves {
namespace {

/// Records what it is asked. Only speaker 2 does: speaker 1 never speaks, so its stop silences nothing.
class RecordingSpeaker : public TtsSpeaker {
 public:
  RecordingSpeaker(Transcript* record, TtsSpeaker* real) : Record(record), Real(real) {}

  void SpeakNow(std::string_view text, std::span<const BookMark> marks) override {
    Note("now", text);
    if (Real) Real->SpeakNow(text, marks);
  }
  void SpeakQueued(std::string_view text, std::span<const BookMark> marks) override {
    Note("queued", text);
    if (Real) Real->SpeakQueued(text, marks);
  }
  void Stop() override {
    Note("stop", "");
    if (Real) Real->Stop();
  }
  bool Busy() const override { return Real && Real->Busy(); }

 private:
  void Note(std::string_view how, std::string_view text) {
    if (Record) Record->push_back({how, std::string(text)});
  }

  Transcript* Record;
  TtsSpeaker* Real;
};

class RecordingEngine : public TtsEngine {
 public:
  RecordingEngine(Transcript& record, std::unique_ptr<TtsEngine> real)
      : Real(std::move(real)),
        First(nullptr, Real ? Real->Speaker(1) : nullptr),
        Second(&record, Real ? Real->Speaker(2) : nullptr) {}

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
  std::unique_ptr<TtsEngine> Real;
  RecordingSpeaker First;
  RecordingSpeaker Second;
};

}  // namespace

TtsEngineInfo RecordingTts::Item(int index) const {
  return Real ? Real->Item(index) : TtsEngineInfo{"QVES", "transcript", "transcript", 9};
}

std::unique_ptr<TtsEngine> RecordingTts::Open(int index) {
  auto real = Real ? Real->Open(index) : nullptr;
  if (Real && !real) return nullptr;
  return std::make_unique<RecordingEngine>(Record, std::move(real));
}

void RecordingTts::SetListener(TtsListener* listener) {
  if (Real) Real->SetListener(listener);
}

}  // namespace qves
