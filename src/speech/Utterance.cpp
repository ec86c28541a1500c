#include "speech/Utterance.h"

namespace qves {

SpeakerState::SpeakerState(std::shared_ptr<SpeechReporter> reporter, TtsSpeaker& speaker)
    : Reporter(std::move(reporter)), Speaker(&speaker) {}

void SpeakerState::Retire() {
  Interrupt();
  Speaker = nullptr;
}

void SpeakerState::RemoveText() {
  if (--Texts > 0) return;
  // A speaker that has been given another text by the time of delivery has not stopped: that text will report
  // it.
  Reporter->Post([self = shared_from_this()](TtsListener& listener) {
    if (self->Speaker && !self->Busy()) listener.SpeechStopped(*self->Speaker);
  });
}

void SpeakerState::ReachMark(std::uint64_t ofGeneration, std::int32_t number) {
  Reporter->Post([self = shared_from_this(), ofGeneration, number](TtsListener& listener) {
    if (self->Speaker && self->CurrentGeneration == ofGeneration)
      listener.BookMarkReached(number, *self->Speaker);
  });
}

SpeechTicket::SpeechTicket(std::shared_ptr<SpeakerState> state)
    : State(std::move(state)), Generation(State->Generation()) {
  State->AddText();
}

SpeechTicket::~SpeechTicket() {
  if (State) State->RemoveText();
}

SpeechTicket& SpeechTicket::operator=(SpeechTicket&& other) noexcept {
  std::swap(State, other.State);
  std::swap(Generation, other.Generation);
  return *this;
}

void Utterance::DropFront(std::size_t length) {
  Text.erase(0, length);
  std::erase_if(Marks, [length](const BookMark& mark) { return mark.Offset < length; });
  for (BookMark& mark : Marks) mark.Offset -= length;
}

}  // namespace qves
