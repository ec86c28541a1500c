#include "speech/SpeechEngine.h"

#include <utility>

#include "speech/SpeechScales.h"
#include "speech/SpeechText.h"

namespace qves {

SpeechSpeaker::SpeechSpeaker(SpeechEngine& engine, std::shared_ptr<SpeechReporter> reporter)
    : Engine(engine), State(std::make_shared<SpeakerState>(std::move(reporter), *this)) {}

SpeechSpeaker::~SpeechSpeaker() {
  State->Retire();
  Engine.Route->Interrupt();
}

void SpeechSpeaker::SpeakNow(std::string_view text, std::span<const BookMark> marks) {
  if (text.empty()) return Stop();
  State->Interrupt();
  Engine.Speak(text, marks, SpeechTicket(State));
  Engine.Route->Interrupt();
}

void SpeechSpeaker::SpeakQueued(std::string_view text, std::span<const BookMark> marks) {
  if (!text.empty()) Engine.Speak(text, marks, SpeechTicket(State));
}

void SpeechSpeaker::Stop() {
  State->Interrupt();
  Engine.Route->Interrupt();
}

SpeechEngine::SpeechEngine(std::shared_ptr<const Voice> voice, std::shared_ptr<SpeechRoute> route,
                           const std::shared_ptr<SpeechReporter>& reporter)
    : Speaking(std::move(voice)),
      Route(std::move(route)),
      Speakers{SpeechSpeaker(*this, reporter), SpeechSpeaker(*this, reporter)} {}

void SpeechEngine::SetSpeed(int wordsPerMinute) {
  Settings.WordsPerMinute = wordsPerMinute;
}

void SpeechEngine::SetVolume(std::int32_t volume) {
  Settings.Volume = volume;
}

void SpeechEngine::SetPitch(int pitch) {
  Settings.Pitch = Fraction(pitch, MinimumPitch(), MaximumPitch());
}

int SpeechEngine::MinimumPitch() const {
  return Driver().MinimumPitch();
}

int SpeechEngine::MaximumPitch() const {
  return Driver().MaximumPitch();
}

TtsSpeaker* SpeechEngine::Speaker(int number) {
  return number == 1 || number == 2 ? &Speakers[std::size_t(number) - 1] : nullptr;
}

bool SpeechEngine::Busy() const {
  return Speakers[0].Busy() || Speakers[1].Busy();
}

void SpeechEngine::Speak(std::string_view text, std::span<const BookMark> marks, SpeechTicket ticket) {
  Route->Speak({CleanText(text), OrderedMarks(marks, text.size()), Speaking, Settings, std::move(ticket)});
}

}  // namespace qves
