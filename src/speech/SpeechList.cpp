#include "speech/SpeechList.h"

#include <iterator>
#include <utility>

#include "speech/SpeechEngine.h"

namespace qves {

void SpeechRoute::Add(std::shared_ptr<SpeechDriver> driver) {
  Drivers.push_back(std::move(driver));
}

void SpeechRoute::Speak(Utterance text) {
  const std::lock_guard lock(Mutex);
  Lead(std::move(text));
}

void SpeechRoute::Interrupt() {
  for (const auto& driver : Drivers) driver->Interrupt();
}

void SpeechRoute::TakeBack(int number, std::vector<Utterance> texts) {
  const std::lock_guard lock(Mutex);
  Driver(number)->PutDown();
  for (Utterance& text : texts) {
    if (!text.Ticket.Outdated()) Lead(std::move(text));
  }
}

void SpeechRoute::Lead(Utterance text) {
  const std::size_t own = std::size_t(text.Speaking->BackEnd);
  for (std::size_t i = 0; i < Drivers.size(); ++i) {
    SpeechDriver& driver = *Drivers[(own + i) % Drivers.size()];
    if (driver.Usable()) return driver.Speak(std::move(text));
  }
}

SpeechList::SpeechList(EventPump& pump)
    : Reporter(std::make_shared<SpeechReporter>(pump)), Route(std::make_shared<SpeechRoute>()) {}

SpeechList::~SpeechList() {
  Reporter->Close();
}

void SpeechList::Add(const DriverMaker& maker, bool listed) {
  const int number = Route->DriverCount();
  DriverLinks links;
  links.Number = number;
  links.VoicesChanged = [reporter = Reporter] {
    reporter->Post([](TtsListener& listener) { listener.EngineListChanged(); });
  };
  links.HandBack = [weak = std::weak_ptr(Route), number](std::vector<Utterance> texts) {
    if (const auto lasting = weak.lock()) lasting->TakeBack(number, std::move(texts));
  };
  Route->Add(maker(std::move(links)));
  if (!listed) return;
  ListedDrivers.push_back(number);
  Route->Driver(number)->Prepare();
}

int SpeechList::Count() const {
  std::vector<Voice> all;
  for (const int number : ListedDrivers) {
    std::vector<Voice> some = Route->Driver(number)->Voices();
    std::move(some.begin(), some.end(), std::back_inserter(all));
  }
  Voices = std::move(all);
  return int(Voices.size());
}

TtsEngineInfo SpeechList::Item(int index) const {
  const Voice* voice = VoiceAt(index);
  return voice ? voice->Info : TtsEngineInfo{};
}

std::unique_ptr<TtsEngine> SpeechList::Open(int index) {
  const Voice* voice = VoiceAt(index);
  if (!voice) return nullptr;
  return std::make_unique<SpeechEngine>(std::make_shared<const Voice>(*voice), Route, Reporter);
}

void SpeechList::SetListener(TtsListener* listener) {
  Reporter->SetListener(listener);
}

const Voice* SpeechList::VoiceAt(int index) const {
  if (Voices.empty()) Count();
  if (index < 1 || std::size_t(index) > Voices.size()) return nullptr;
  return &Voices[std::size_t(index) - 1];
}

}  // namespace qves
