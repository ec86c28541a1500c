#include "terminal/SilentTts.h"

#include <utility>

namespace qves {
namespace {

/// A text without marks counts as finished at once.
class SilentSpeaker : public TtsSpeaker {
 public:
  explicit SilentSpeaker(SilentReading& reading) : Reading(reading) {}

  void SpeakNow(std::string_view, std::span<const BookMark> marks) override {
    Reading = {};
    Read(marks);
  }
  void SpeakQueued(std::string_view, std::span<const BookMark> marks) override { Read(marks); }
  void Stop() override { Reading = {}; }
  bool Busy() const override { return false; }

 private:
  void Read(std::span<const BookMark> marks) {
    if (!marks.empty()) Reading.Speaker = this;
    for (const BookMark& mark : marks) Reading.Marks.push_back(mark.Number);
  }

  SilentReading& Reading;
};

class SilentEngine : public TtsEngine {
 public:
  explicit SilentEngine(SilentReading& reading) : Reading(reading), First(Unread), Second(reading) {}
  ~SilentEngine() override { Reading = {}; }

  bool Initialise() override { return true; }
  void SetSpeed(int) override {}
  void SetVolume(std::int32_t) override {}
  void SetPitch(int) override {}
  int MinimumPitch() const override { return 0; }
  int MaximumPitch() const override { return 100; }
  TtsSpeaker* Speaker(int number) override { return number == 1 ? &First : number == 2 ? &Second : nullptr; }
  bool Busy() const override { return false; }

 private:
  SilentReading& Reading;
  SilentReading Unread;  // speaker 1 never speaks, so its stop silences nothing
  SilentSpeaker First;
  SilentSpeaker Second;
};

}  // namespace

std::unique_ptr<TtsEngine> SilentTts::Open(TtsChooser) {
  return std::make_unique<SilentEngine>(Reading);
}

void SilentTts::ReadOn(std::optional<int> marks) {
  for (int told = 0; Reading.Speaker && !Reading.Marks.empty() && (!marks || told < *marks); ++told) {
    const std::int32_t mark = Reading.Marks.front();
    Reading.Marks.pop_front();
    if (Listener) Listener->BookMarkReached(mark, *Reading.Speaker);
  }
  if (marks || !Reading.Speaker) return;
  TtsSpeaker& speaker = *std::exchange(Reading, {}).Speaker;
  if (Listener) Listener->SpeechStopped(speaker);
}

}  // namespace qves
