#include "services/OwnSettings.h"

#include <algorithm>
#include <span>

#include "services/QuotedFields.h"
#include "text/Text.h"
#include "voicing/VoiceWords.h"

namespace qves {
namespace {

struct Choice {
  std::string_view Word;
  int Value;
};

/// A setting that is one of a few words, each with the value that the field holds.
struct OwnSetting {
  std::string_view Key;
  int AppSettings::*Field;
  std::span<const Choice> Choices;
};

constexpr int ValueOf(NumberReading reading) {
  return static_cast<int>(reading);
}

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
    {"NoFunctionSound", &AppSettings::NoFunctionSound, TrueFalse},
    {"KeepHistory", &AppSettings::KeepHistory, TrueFalse},
};

std::string ListOf(std::span<const Choice> choices) {
  std::string list;
  for (const Choice& choice : choices) list.append(list.empty() ? "" : ", ").append(choice.Word);
  return list;
}

}  // namespace

std::string StoreOwnSetting(AppSettings& settings, std::string_view key, std::string_view word) {
  const auto* setting = std::ranges::find(OwnSettings, key, &OwnSetting::Key);
  if (setting == std::end(OwnSettings)) return "";
  const auto found = std::ranges::find(setting->Choices, Lower(word), &Choice::Word);
  if (found == setting->Choices.end()) return "is none of " + ListOf(setting->Choices);
  settings.*(setting->Field) = found->Value;
  return "";
}

std::string OwnSettingLines(const AppSettings& settings) {
  const AppSettings defaults;
  std::string lines;
  for (const OwnSetting& setting : OwnSettings) {
    const int now = settings.*(setting.Field);
    if (now == defaults.*(setting.Field)) continue;
    const auto choice = std::ranges::find(setting.Choices, now, &Choice::Value);
    lines += Quote(setting.Key) + "," + Quote(choice->Word) + "\n";
  }
  return lines;
}

}  // namespace qves
