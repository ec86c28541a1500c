#include "speech/SpeechBackEnds.h"

#include <vector>

#include "speech/SpeechList.h"
#ifdef QVES_HAVE_ESPEAK
#include "speech/espeak/EspeakBackEnd.h"
#endif
#ifdef QVES_HAVE_SPEECHD
#include "speech/speechd/SpeechdBackEnd.h"
#endif

namespace qves {
namespace {

using Makers = std::vector<BackEndMaker>;

Makers Espeak() {
#ifdef QVES_HAVE_ESPEAK
  return {[](Wake& changed) { return std::make_unique<EspeakBackEnd>(changed); }};
#else
  return {};
#endif
}

Makers Speechd([[maybe_unused]] bool eager) {
#ifdef QVES_HAVE_SPEECHD
  return {[eager](Wake& changed) { return std::make_unique<SpeechdBackEnd>(changed, eager); }};
#else
  return {};
#endif
}

Makers Both(Makers first, const Makers& second) {
  first.insert(first.end(), second.begin(), second.end());
  return first;
}

}  // namespace

std::unique_ptr<TTS> MakeSpeech(SpeechChoice choice, EventPump& pump) {
  const auto list = [&pump](const Makers& listed, const Makers& standIns) {
    return std::make_unique<SpeechList>(pump, listed, standIns);
  };
  switch (choice) {
    case SpeechChoice::EspeakNg:
      return list(Espeak(), {});
    case SpeechChoice::SpeechDispatcher:
      return list(Speechd(true), Espeak());
    case SpeechChoice::Off:
      return list({}, {});
    case SpeechChoice::Auto:
      break;
  }
  return list(Both(Espeak(), Speechd(Espeak().empty())), {});
}

}  // namespace qves
