#include "speech/SpeechBackEnds.h"

#include "speech/SpeechList.h"
#ifdef QVES_HAVE_ESPEAK
#include "speech/espeak/EspeakBackEnd.h"
#endif
#ifdef QVES_HAVE_SPEECHD
#include "speech/speechd/SpeechdBackEnd.h"
#endif

namespace qves {
namespace {

#ifdef QVES_HAVE_ESPEAK
constexpr bool HaveEspeak = true;
#else
constexpr bool HaveEspeak = false;
#endif

void AddEspeak([[maybe_unused]] SpeechQueue& queue, [[maybe_unused]] bool listed) {
#ifdef QVES_HAVE_ESPEAK
  queue.Add(std::make_unique<EspeakBackEnd>(queue.Changed()), listed);
#endif
}

void AddSpeechd([[maybe_unused]] SpeechQueue& queue, [[maybe_unused]] bool eager) {
#ifdef QVES_HAVE_SPEECHD
  queue.Add(std::make_unique<SpeechdBackEnd>(queue.Changed(), eager), true);
#endif
}

}  // namespace

std::unique_ptr<TTS> MakeSpeech(SpeechChoice choice, EventPump& pump) {
  auto queue = std::make_shared<SpeechQueue>(pump);
  const bool speechdOnly = choice == SpeechChoice::SpeechDispatcher;
  if (speechdOnly) AddSpeechd(*queue, true);
  if (choice != SpeechChoice::Off) AddEspeak(*queue, !speechdOnly);
  if (choice == SpeechChoice::Auto) AddSpeechd(*queue, !HaveEspeak);
  return MakeSpeechList(std::move(queue));
}

}  // namespace qves
