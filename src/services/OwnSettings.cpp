#include "services/OwnSettings.h"

namespace qves {
namespace {

template <class>
struct FieldOf;
template <class Field>
struct FieldOf<Field AppSettings::*> {
  using Type = Field;
};

template <auto Member, int Step = 1>
int Chosen(const AppSettings& settings) {
  return static_cast<int>(settings.*Member) / Step;
}

template <auto Member, int Step = 1>
void Choose(AppSettings& settings, int value) {
  settings.*Member = static_cast<typename FieldOf<decltype(Member)>::Type>(value * Step);
}

constexpr std::string_view Readings[] = {"host", "natural", "digits", "pairs", "triples", "voice"};
constexpr std::string_view Decimals[] = {"all", "2", "4", "6", "8"};
constexpr std::string_view Details[] = {"full", "brief"};

constexpr OwnSetting Table[] = {
    {"NumberReading", Readings, Chosen<&AppSettings::ReadNumbersAs>, Choose<&AppSettings::ReadNumbersAs>},
    {"SpokenDecimals", Decimals, Chosen<&AppSettings::SpokenDecimals, 2>,
     Choose<&AppSettings::SpokenDecimals, 2>},
    {"SpeechDetail", Details, Chosen<&AppSettings::Detail>, Choose<&AppSettings::Detail>},
};

}  // namespace

std::span<const OwnSetting> OwnSettings() {
  return Table;
}

}  // namespace qves
