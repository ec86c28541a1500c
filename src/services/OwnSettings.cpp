#include "services/OwnSettings.h"

#include <algorithm>
#include <optional>
#include <span>

#include "services/QuotedFields.h"
#include "text/Integers.h"
#include "text/Text.h"
#include "voicing/VoiceWords.h"

namespace qves {
namespace {

struct Choice {
  std::string_view Word;
  int Value;
};

/// A setting that is one of a few words, each with the value that the field holds, or a number in a range.
struct OwnSetting {
  std::string_view Key;
  int AppSettings::*Field;
  std::span<const Choice> Choices;
  NumberRange Numbers = {0, -1};  ///< none
};

constexpr int ValueOf(NumberReading reading) {
  return static_cast<int>(reading);
}

constexpr Choice HostOnly[] = {{"host", HostLevel}};
constexpr Choice Voices[] = {{"auto", OwnVoiceAuto}, {"on", OwnVoiceOn}, {"off", OwnVoiceOff}};
constexpr Choice AutoOnOff[] = {{"auto", DecimalCommaAuto}, {"on", DecimalCommaOn}, {"off", DecimalCommaOff}};
constexpr Choice TrueFalse[] = {{"true", true}, {"false", false}};
constexpr Choice Readings[] = {
    {"host", ValueOf(NumberReading::AsHost)},     {"natural", ValueOf(NumberReading::Natural)},
    {"digits", ValueOf(NumberReading::Digits)},   {"pairs", ValueOf(NumberReading::Pairs)},
    {"triples", ValueOf(NumberReading::Triples)}, {"voice", ValueOf(NumberReading::Voice)}};
constexpr Choice Decimals[] = {{"all", AllDecimals}, {"2", 2}, {"4", 4}, {"6", 6}, {"8", 8}};
constexpr Choice Details[] = {{"full", FullSpeech}, {"brief", BriefSpeech}};

constexpr OwnSetting OwnSettings[] = {
    {"DecimalComma", &AppSettings::DecimalComma, AutoOnOff},
    {"NumberReading", &AppSettings::ReadNumbersAs, Readings},
    {"SpokenDecimals", &AppSettings::SpokenDecimals, Decimals},
    {"SpeechDetail", &AppSettings::Detail, Details},
    {"Speed", &AppSettings::Speed, HostOnly, SpeedRange},
    {"Volume", &AppSettings::Volume, HostOnly, VolumeRange},
    {"OwnVoice", &AppSettings::OwnVoice, Voices},
    {"NoFunctionSound", &AppSettings::NoFunctionSound, TrueFalse},
    {"KeepHistory", &AppSettings::KeepHistory, TrueFalse},
};

bool IsIn(const NumberRange& range, int number) {
  return number >= range.From && number <= range.To;
}

/// What the setting may be.
std::string ListOf(const OwnSetting& setting) {
  std::string list;
  for (const Choice& choice : setting.Choices) list.append(list.empty() ? "" : ", ").append(choice.Word);
  const auto& [from, to] = setting.Numbers;
  return from > to ? list : list + ", " + std::to_string(from) + " to " + std::to_string(to);
}

std::optional<int> ValueOf(const OwnSetting& setting, std::string_view word) {
  const auto found = std::ranges::find(setting.Choices, Lower(word), &Choice::Word);
  if (found != setting.Choices.end()) return found->Value;
  const auto number = ParseInteger(word);
  return number && IsIn(setting.Numbers, *number) ? number : std::nullopt;
}

std::string WordOf(const OwnSetting& setting, int value) {
  if (IsIn(setting.Numbers, value)) return std::to_string(value);
  return std::string(std::ranges::find(setting.Choices, value, &Choice::Value)->Word);
}

}  // namespace

std::string StoreOwnSetting(AppSettings& settings, std::string_view key, std::string_view word) {
  const auto* setting = std::ranges::find(OwnSettings, key, &OwnSetting::Key);
  if (setting == std::end(OwnSettings)) return "";
  const auto value = ValueOf(*setting, word);
  if (!value) return "is none of " + ListOf(*setting);
  settings.*(setting->Field) = *value;
  return "";
}

std::string OwnSettingLines(const AppSettings& settings) {
  const AppSettings defaults;
  std::string lines;
  for (const OwnSetting& setting : OwnSettings) {
    const int now = settings.*(setting.Field);
    if (now == defaults.*(setting.Field)) continue;
    lines += Quote(setting.Key) + "," + Quote(WordOf(setting, now)) + "\n";
  }
  return lines;
}

}  // namespace qves
