// The voices of espeak-ng, in the order in which they are offered.
#pragma once

#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "speech/SpeechBackEnd.h"

namespace qves {

/// A voice as the library tells it.
struct EspeakVoice {
  std::string Name;
  std::string Identifier;                              ///< its file
  std::vector<std::pair<int, std::string>> Languages;  ///< priority (the lower the better) and tag
};

/// All that the library has, which is initialised.
std::vector<EspeakVoice> InstalledVoices();

/// Unpacks the library's list of languages: for each a byte of priority and a text, ended by a 0 byte.
std::vector<std::pair<int, std::string>> UnpackLanguages(const char* packed);

/// The voices in order: the desktop's language and country, the desktop's language, English, the others as
/// they come. Variants, which are no voices of their own, are left out.
std::vector<Voice> OfferedVoices(const std::vector<EspeakVoice>& all, std::string_view desktopLanguage,
                                 const SpeechBackEnd* backEnd);

}  // namespace qves
