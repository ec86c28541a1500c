#include "speech/SpeechEngine.h"

#include <utility>

namespace qves {

SpeechSpeaker::SpeechSpeaker(SpeechEngine& engine) : Engine(engine) {
  Record->Speaker = this;
}

SpeechSpeaker::~SpeechSpeaker() {
  Record->Speaker = nullptr;
  Stop();
}

void SpeechSpeaker::SpeakNow(std::string_view text, std::span<const BookMark> marks) {
  if (text.empty())
    Stop();
  else
    Speak(text, marks, true);
}

void SpeechSpeaker::SpeakQueued(std::string_view text, std::span<const BookMark> marks) {
  if (!text.empty()) Speak(text, marks, false);
}

void SpeechSpeaker::Speak(std::string_view text, std::span<const BookMark> marks, bool interrupts) {
  Utterance what{std::string(text), {marks.begin(), marks.end()}, Engine.Settings, {}};
  Engine.Queue->Speak({std::move(what), Engine.Voice, Record, interrupts});
}

void SpeechSpeaker::Stop() {
  Engine.Queue->Silence(Record);
}

bool SpeechSpeaker::Busy() const {
  return Engine.Queue->Busy(*Record);
}

SpeechEngine::SpeechEngine(std::shared_ptr<SpeechQueue> queue, TtsChooser choose)
    : Queue(std::move(queue)), Speakers{SpeechSpeaker(*this), SpeechSpeaker(*this)} {
  Voice->Choose = std::move(choose);
}

TtsSpeaker* SpeechEngine::Speaker(int number) {
  return number == 1 || number == 2 ? &Speakers[std::size_t(number) - 1] : nullptr;
}

}  // namespace qves
