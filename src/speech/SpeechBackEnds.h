// The way into the room: which back ends speak.
#pragma once

#include <memory>

#include "platform/Outside.h"
#include "platform/TTS.h"

namespace qves {

enum class SpeechChoice {
  Auto,              ///< espeak-ng's voices, then speech-dispatcher's, in one list
  EspeakNg,          ///< espeak-ng's voices only
  SpeechDispatcher,  ///< speech-dispatcher's voices; espeak-ng stands in when its server fails for good
  Off                ///< no voice at all
};

/// The list of the chosen back ends' voices; one that was left out of the build contributes none. `pump` has
/// to live longer than the list.
std::unique_ptr<TTS> MakeSpeech(SpeechChoice choice, EventPump& pump);

}  // namespace qves
