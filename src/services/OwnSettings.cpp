#include "services/OwnSettings.h"

#include <algorithm>
#include <span>

#include "services/QuotedFields.h"
#include "text/Text.h"

namespace qves {
namespace {

/// A setting that is one of a few words; the field holds which.
struct OwnSetting {
  std::string_view Key;
  int AppSettings::*Field;
  std::span<const std::string_view> Words;
};

constexpr std::string_view AutoOnOff[] = {"auto", "on", "off"};
constexpr std::string_view TrueFalse[] = {"true", "false"};
constexpr std::string_view Readings[] = {"host", "natural", "digits", "pairs", "triples", "voice"};
constexpr std::string_view Decimals[] = {"all", "2", "4", "6", "8"};
constexpr std::string_view Details[] = {"full", "brief"};

constexpr OwnSetting OwnSettings[] = {
    {"DecimalComma", &AppSettings::DecimalComma, AutoOnOff},
    {"NumberReading", &AppSettings::ReadNumbersAs, Readings},
    {"SpokenDecimals", &AppSettings::PairsOfDecimals, Decimals},
    {"SpeechDetail", &AppSettings::Detail, Details},
    {"NoFunctionSound", &AppSettings::NoFunctionSound, TrueFalse},
    {"KeepHistory", &AppSettings::KeepHistory, TrueFalse},
};

std::string ListOf(std::span<const std::string_view> words) {
  std::string list;
  for (const std::string_view word : words) list.append(list.empty() ? "" : ", ").append(word);
  return list;
}

}  // namespace

std::string StoreOwnSetting(AppSettings& settings, std::string_view key, std::string_view word) {
  const auto* setting = std::ranges::find(OwnSettings, key, &OwnSetting::Key);
  if (setting == std::end(OwnSettings)) return "";
  const auto found = std::ranges::find(setting->Words, Lower(word));
  if (found == setting->Words.end()) return "is none of " + ListOf(setting->Words);
  settings.*(setting->Field) = static_cast<int>(found - setting->Words.begin());
  return "";
}

std::string OwnSettingLines(const AppSettings& settings) {
  const AppSettings defaults;
  std::string lines;
  for (const OwnSetting& setting : OwnSettings) {
    const int now = settings.*(setting.Field);
    if (now == defaults.*(setting.Field)) continue;
    lines += Quote(setting.Key) + "," + Quote(setting.Words[static_cast<std::size_t>(now)]) + "\n";
  }
  return lines;
}

}  // namespace qves
