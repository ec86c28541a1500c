#include "speech/SpeechReporter.h"

namespace qves {

SpeechReporter::SpeechReporter(EventPump& pumpToUse) : pump(&pumpToUse) {}

void SpeechReporter::SetListener(TtsListener* listener) {
  const std::lock_guard lock(mutex);
  if (ear) ear->Listener = nullptr;
  ear = listener ? std::make_shared<Ear>(Ear{listener}) : nullptr;
}

void SpeechReporter::Close() {
  SetListener(nullptr);
  const std::lock_guard lock(mutex);
  pump = nullptr;
}

void SpeechReporter::Post(std::function<void(TtsListener&)> report) {
  const std::lock_guard lock(mutex);
  if (!ear || !pump) return;
  pump->Post([ear = ear, report = std::move(report)] {
    if (ear->Listener) report(*ear->Listener);
  });
}

}  // namespace qves
