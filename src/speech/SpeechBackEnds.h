// The way into the room: which back ends speak.
#pragma once

#include <memory>
#include <optional>
#include <string_view>
#include <utility>

#include "platform/Outside.h"
#include "platform/TTS.h"

namespace qves {

enum class SpeechChoice {
  Auto,              ///< espeak-ng's voices, then speech-dispatcher's, in one list
  EspeakNg,          ///< espeak-ng's voices only
  SpeechDispatcher,  ///< speech-dispatcher's voices; espeak-ng stands in when its server fails for good
  Off                ///< no voice at all
};

/// auto, speech-dispatcher, espeak-ng or off; nothing for any other name.
constexpr std::optional<SpeechChoice> FindSpeechChoice(std::string_view wanted) {
  constexpr std::pair<std::string_view, SpeechChoice> names[] = {
      {"auto", SpeechChoice::Auto},
      {"speech-dispatcher", SpeechChoice::SpeechDispatcher},
      {"espeak-ng", SpeechChoice::EspeakNg},
      {"off", SpeechChoice::Off}};
  for (const auto& [name, choice] : names)
    if (name == wanted) return choice;
  return std::nullopt;
}

/// The list of the chosen back ends' voices; one that was left out of the build contributes none. `pump` has
/// to live longer than the list.
std::unique_ptr<TTS> MakeSpeech(SpeechChoice choice, EventPump& pump);

}  // namespace qves
