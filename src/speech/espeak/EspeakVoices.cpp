#include "speech/espeak/EspeakVoices.h"

#include <algorithm>
#include <chrono>
#include <tuple>

#include "speech/LanguageIds.h"

namespace qves {
namespace {

constexpr auto LongestWait = std::chrono::milliseconds(500);
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

Voice Offered(const EspeakVoice& voice, int backEnd) {
  const int id = voice.Languages.empty() ? UnknownLanguageId : LanguageIdOf(voice.Languages.front().second);
  return {{"eSpeak NG", "espeak-ng", Trimmed(voice.Name), id}, voice.Name, backEnd};
}

}  // namespace

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
                                 int backEnd) {
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

EspeakVoiceBox::EspeakVoiceBox(std::function<void()> changed) : Changed(std::move(changed)) {}

void EspeakVoiceBox::Fill(std::vector<Voice> list) {
  bool late = false;
  {
    const std::lock_guard lock(Mutex);
    Voices = std::move(list);
    Filled = true;
    late = Missed;
  }
  FilledChanged.notify_all();
  if (late) Changed();
}

std::vector<Voice> EspeakVoiceBox::Wait() {
  std::unique_lock lock(Mutex);
  if (!Missed) Missed = !FilledChanged.wait_for(lock, LongestWait, [this] { return Filled; });
  return Voices;
}

bool EspeakVoiceBox::Failed() const {
  const std::lock_guard lock(Mutex);
  return Filled && Voices.empty();
}

}  // namespace qves
