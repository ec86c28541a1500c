#include "speech/Utterance.h"

namespace qves {

SpeakerState::SpeakerState(std::shared_ptr<SpeechReporter> reporterToUse, TtsSpeaker& owner)
    : reporter(std::move(reporterToUse)), speaker(&owner) {}

void SpeakerState::Retire() {
  Interrupt();
  speaker = nullptr;
}

void SpeakerState::RemoveText() {
  if (--texts > 0) return;
  // A speaker that has been given another text by the time of delivery has not stopped: that text will report
  // it.
  reporter->Post([self = shared_from_this()](TtsListener& listener) {
    if (self->speaker && !self->Busy()) listener.SpeechStopped(*self->speaker);
  });
}

void SpeakerState::ReachMark(std::uint64_t ofGeneration, std::int32_t number) {
  reporter->Post([self = shared_from_this(), ofGeneration, number](TtsListener& listener) {
    if (self->speaker && self->generation == ofGeneration) listener.BookMarkReached(number, *self->speaker);
  });
}

SpeechTicket::SpeechTicket(std::shared_ptr<SpeakerState> speakerState)
    : state(std::move(speakerState)), generation(state->Generation()) {
  state->AddText();
}

SpeechTicket::~SpeechTicket() {
  if (state) state->RemoveText();
}

SpeechTicket& SpeechTicket::operator=(SpeechTicket&& other) noexcept {
  std::swap(state, other.state);
  std::swap(generation, other.generation);
  return *this;
}

}  // namespace qves
