#include "speech/SpeechList.h"

#include <iterator>
#include <utility>

#include "speech/SpeechEngine.h"

namespace qves {

void SpeechRoute::Add(std::shared_ptr<SpeechDriver> driver) {
  drivers.push_back(std::move(driver));
}

void SpeechRoute::Speak(Utterance text) {
  const std::lock_guard lock(mutex);
  Lead(std::move(text));
}

void SpeechRoute::Interrupt() {
  for (const auto& driver : drivers) driver->Interrupt();
}

void SpeechRoute::TakeBack(int number, std::vector<Utterance> texts) {
  const std::lock_guard lock(mutex);
  Driver(number)->PutDown();
  for (Utterance& text : texts) {
    if (!text.Ticket.Outdated()) Lead(std::move(text));
  }
}

void SpeechRoute::Lead(Utterance text) {
  const std::size_t own = std::size_t(text.Speaking->BackEnd);
  for (std::size_t i = 0; i < drivers.size(); ++i) {
    SpeechDriver& driver = *drivers[(own + i) % drivers.size()];
    if (driver.Usable()) return driver.Speak(std::move(text));
  }
}

SpeechList::SpeechList(EventPump& pump)
    : reporter(std::make_shared<SpeechReporter>(pump)), route(std::make_shared<SpeechRoute>()) {}

SpeechList::~SpeechList() {
  reporter->Close();
}

void SpeechList::Add(const DriverMaker& maker, bool listed) {
  const int number = route->DriverCount();
  DriverLinks links;
  links.Number = number;
  links.VoicesChanged = [reporter = reporter] {
    reporter->Post([](TtsListener& listener) { listener.EngineListChanged(); });
  };
  links.HandBack = [weak = std::weak_ptr(route), number](std::vector<Utterance> texts) {
    if (const auto lasting = weak.lock()) lasting->TakeBack(number, std::move(texts));
  };
  route->Add(maker(std::move(links)));
  if (!listed) return;
  listedDrivers.push_back(number);
  route->Driver(number)->Prepare();
}

int SpeechList::Count() const {
  std::vector<Voice> all;
  for (const int number : listedDrivers) {
    std::vector<Voice> some = route->Driver(number)->Voices();
    std::move(some.begin(), some.end(), std::back_inserter(all));
  }
  voices = std::move(all);
  return int(voices.size());
}

TtsEngineInfo SpeechList::Item(int index) const {
  const Voice* voice = VoiceAt(index);
  return voice ? voice->Info : TtsEngineInfo{};
}

std::unique_ptr<TtsEngine> SpeechList::Open(int index) {
  const Voice* voice = VoiceAt(index);
  if (!voice) return nullptr;
  return std::make_unique<SpeechEngine>(std::make_shared<const Voice>(*voice), route, reporter);
}

void SpeechList::SetListener(TtsListener* listener) {
  reporter->SetListener(listener);
}

const Voice* SpeechList::VoiceAt(int index) const {
  if (voices.empty()) Count();
  if (index < 1 || std::size_t(index) > voices.size()) return nullptr;
  return &voices[std::size_t(index) - 1];
}

}  // namespace qves
