#include "services/VerbosityTable.h"

namespace qves {

void VerbosityTable::Initialise() {
  Entries = {};
  Entries[TopOfListEntry] = {1414,          FeedbackMode::Spoken, 1414, "Q1KListTop",
                             "ListEnd.wav", "vrbTopOfList",       "",   true};
  Entries[BottomOfListEntry] = {1413,          FeedbackMode::Spoken, 1413, "Q1KListBot",
                                "ListEnd.wav", "vrbBotOfList",       "",   true};
  Entries[NoFunctionEntry] = {1701, FeedbackMode::Sound, 0, "QNoFunction", "NoFunction.wav", "", "", true};
  Entries[ListPositionEntry] = {3025, FeedbackMode::Silent, 3026, "", "", "vrbListPos", "", false};
}

void VerbosityTable::ApplySetting(std::string_view key, std::string_view value) {
  const bool hasMode = !value.empty() && value[0] >= '0' && value[0] <= '4';
  if (!hasMode || (value.size() > 1 && value[1] != ' ')) return;
  for (VerbosityEntry& entry : Entries) {
    if (entry.SettingKey != key || entry.SettingKey.empty()) continue;
    entry.Mode = static_cast<FeedbackMode>(value[0] - '0');
    if (value.size() > 2) entry.CustomText = value.substr(2);
  }
}

std::string VerbosityTable::VerbosityText(int index) const {
  const VerbosityEntry& entry = Entry(index);
  if (!entry.CustomText.empty()) return entry.CustomText;
  return entry.TextId == 0 ? std::string() : Messages.GetMessage(entry.TextId);
}

}  // namespace qves
