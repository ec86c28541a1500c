#include "speech/espeak/EspeakVoices.h"

#include <espeak-ng/speak_lib.h>

#include <algorithm>
#include <tuple>

#include "speech/LanguageIds.h"

namespace qves {
namespace {

constexpr int NoPriority = 1000;

bool IsVariant(const EspeakVoice& voice) {
  return voice.Identifier.starts_with("!v");
}

// Such a voice needs data that may not be installed.
bool IsForeignVoice(const EspeakVoice& voice) {
  return voice.Identifier.starts_with("mb");
}

int PriorityFor(const EspeakVoice& voice, std::string_view tag) {
  for (const auto& [priority, language] : voice.Languages) {
    if (language == tag) return priority;
  }
  return NoPriority;
}

bool Speaks(const EspeakVoice& voice, std::string_view primary) {
  return !voice.Languages.empty() && PrimaryTag(voice.Languages.front().second) == primary;
}

// The lower, the earlier in the list.
std::tuple<int, int> RankOf(const EspeakVoice& voice, std::string_view desktopLanguage) {
  constexpr int others = 3;
  if (IsForeignVoice(voice)) return {others + 1, 0};
  if (const int exact = PriorityFor(voice, desktopLanguage); exact != NoPriority) return {0, exact};
  const std::string primary = PrimaryTag(desktopLanguage);
  if (Speaks(voice, primary)) return {1, PriorityFor(voice, primary)};
  if (Speaks(voice, "en")) return {2, PriorityFor(voice, "en")};
  return {others, 0};
}

std::string Trimmed(const std::string& text) {
  return text.substr(0, text.find_last_not_of(' ') + 1);
}

Voice Offered(const EspeakVoice& voice, const SpeechBackEnd* backEnd) {
  const int id = voice.Languages.empty() ? UnknownLanguageId : LanguageIdOf(voice.Languages.front().second);
  return {{"eSpeak NG", "espeak-ng", Trimmed(voice.Name), id}, voice.Name, backEnd};
}

}  // namespace

std::vector<EspeakVoice> InstalledVoices() {
  std::vector<EspeakVoice> voices;
  const espeak_VOICE** list = espeak_ListVoices(nullptr);
  for (; list && *list; ++list) {
    const espeak_VOICE& voice = **list;
    if (voice.name && voice.identifier)
      voices.push_back({voice.name, voice.identifier, UnpackLanguages(voice.languages)});
  }
  return voices;
}

std::vector<std::pair<int, std::string>> UnpackLanguages(const char* packed) {
  std::vector<std::pair<int, std::string>> languages;
  while (packed && *packed) {
    const int priority = *packed++;
    languages.emplace_back(priority, packed);
    packed += languages.back().second.size() + 1;
  }
  return languages;
}

std::vector<Voice> OfferedVoices(const std::vector<EspeakVoice>& all, std::string_view desktopLanguage,
                                 const SpeechBackEnd* backEnd) {
  std::vector<const EspeakVoice*> order;
  for (const EspeakVoice& voice : all) {
    if (!IsVariant(voice)) order.push_back(&voice);
  }
  std::stable_sort(order.begin(), order.end(), [&](const EspeakVoice* a, const EspeakVoice* b) {
    return RankOf(*a, desktopLanguage) < RankOf(*b, desktopLanguage);
  });
  std::vector<Voice> offered;
  for (const EspeakVoice* voice : order) offered.push_back(Offered(*voice, backEnd));
  return offered;
}

}  // namespace qves
