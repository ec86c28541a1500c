#include "speech/SpeechEngine.h"

#include <utility>

#include "speech/SpeechScales.h"
#include "speech/SpeechText.h"

namespace qves {

SpeechSpeaker::SpeechSpeaker(SpeechEngine& owner, std::shared_ptr<SpeechReporter> reporter)
    : engine(owner), state(std::make_shared<SpeakerState>(std::move(reporter), *this)) {}

SpeechSpeaker::~SpeechSpeaker() {
  state->Retire();
  engine.route->Interrupt();
}

void SpeechSpeaker::SpeakNow(std::string_view text, std::span<const BookMark> marks) {
  if (text.empty()) return Stop();
  state->Interrupt();
  engine.Speak(text, marks, SpeechTicket(state));
  engine.route->Interrupt();
}

void SpeechSpeaker::SpeakQueued(std::string_view text, std::span<const BookMark> marks) {
  if (!text.empty()) engine.Speak(text, marks, SpeechTicket(state));
}

void SpeechSpeaker::Stop() {
  state->Interrupt();
  engine.route->Interrupt();
}

SpeechEngine::SpeechEngine(std::shared_ptr<const Voice> voiceToUse, std::shared_ptr<SpeechRoute> routeToUse,
                           const std::shared_ptr<SpeechReporter>& reporter)
    : voice(std::move(voiceToUse)),
      route(std::move(routeToUse)),
      speakers{SpeechSpeaker(*this, reporter), SpeechSpeaker(*this, reporter)} {}

void SpeechEngine::SetSpeed(int wordsPerMinute) {
  settings.WordsPerMinute = wordsPerMinute;
}

void SpeechEngine::SetVolume(std::int32_t volume) {
  settings.Volume = volume;
}

void SpeechEngine::SetPitch(int pitch) {
  settings.Pitch = Fraction(pitch, MinimumPitch(), MaximumPitch());
}

int SpeechEngine::MinimumPitch() const {
  return Driver().MinimumPitch();
}

int SpeechEngine::MaximumPitch() const {
  return Driver().MaximumPitch();
}

TtsSpeaker* SpeechEngine::Speaker(int number) {
  return number == 1 || number == 2 ? &speakers[std::size_t(number) - 1] : nullptr;
}

bool SpeechEngine::Busy() const {
  return speakers[0].Busy() || speakers[1].Busy();
}

void SpeechEngine::Speak(std::string_view text, std::span<const BookMark> marks, SpeechTicket ticket) {
  route->Speak({CleanText(text), OrderedMarks(marks, text.size()), voice, settings, std::move(ticket)});
}

}  // namespace qves
