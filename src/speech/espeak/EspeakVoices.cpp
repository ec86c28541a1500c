#include "speech/espeak/EspeakVoices.h"

#include <espeak-ng/speak_lib.h>

#include <algorithm>
#include <string_view>

#include "speech/LanguageIds.h"

namespace qves {
namespace {

// A variant is no voice of its own, and a foreign voice needs data that may not be installed.
bool IsOffered(const espeak_VOICE& voice) {
  const std::string_view file = voice.identifier;
  return !file.starts_with("!v") && !file.starts_with("mb");
}

Voice Offered(const espeak_VOICE& voice, const SpeechBackEnd* owner) {
  const std::string key = voice.name;
  const char* language = voice.languages + 1;  // behind its priority
  return {{"eSpeak NG", "espeak-ng", key.substr(0, key.find_last_not_of(' ') + 1), LanguageIdOf(language)},
          key,
          owner};
}

}  // namespace

std::vector<Voice> EspeakVoices(const std::string& desktopLanguage, const SpeechBackEnd* owner) {
  espeak_VOICE desktop{};
  espeak_VOICE english{};
  desktop.languages = desktopLanguage.c_str();
  english.languages = "en";
  std::vector<Voice> voices;
  const auto add = [&](const espeak_VOICE& voice) {
    const auto isIt = [&](const Voice& known) { return known.Key == voice.name; };
    if (IsOffered(voice) && std::none_of(voices.begin(), voices.end(), isIt))
      voices.push_back(Offered(voice, owner));
  };
  // The library puts those that fit first, and leaves out those of other languages unless all are wanted.
  for (espeak_VOICE* wanted : {&desktop, &english, static_cast<espeak_VOICE*>(nullptr)}) {
    for (const espeak_VOICE** list = espeak_ListVoices(wanted); list && *list; ++list) add(**list);
  }
  return voices;
}

}  // namespace qves
