#include "speech/SpeechReporter.h"

namespace qves {

SpeechReporter::SpeechReporter(EventPump& pump) : Pump(&pump) {}

void SpeechReporter::SetListener(TtsListener* listener) {
  const std::lock_guard lock(Mutex);
  if (CurrentEar) CurrentEar->Listener = nullptr;
  CurrentEar = listener ? std::make_shared<Ear>(Ear{listener}) : nullptr;
}

void SpeechReporter::Close() {
  SetListener(nullptr);
  const std::lock_guard lock(Mutex);
  Pump = nullptr;
}

void SpeechReporter::Post(std::function<void(TtsListener&)> report) {
  const std::lock_guard lock(Mutex);
  if (!CurrentEar || !Pump) return;
  Pump->Post([ear = CurrentEar, report = std::move(report)] {
    if (ear->Listener) report(*ear->Listener);
  });
}

}  // namespace qves
