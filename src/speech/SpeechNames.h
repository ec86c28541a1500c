// The back ends by the names they have on a command line.
#pragma once

#include <optional>
#include <string_view>
#include <utility>

#include "speech/SpeechBackEnds.h"

namespace qves {

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

}  // namespace qves
