// The voices of espeak-ng, in the order in which they are offered.
#pragma once

#include <string>
#include <vector>

#include "speech/SpeechBackEnd.h"

namespace qves {

/// The voices of the library, which is initialised: first those for the desktop's language and country, then
/// for its language, for English, and the others.
std::vector<Voice> EspeakVoices(const std::string& desktopLanguage, const SpeechBackEnd* owner);

}  // namespace qves
