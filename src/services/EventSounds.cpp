#include "services/EventSounds.h"

namespace qves {
namespace {

constexpr std::string_view DefaultValue;

std::string SchemeKey(std::string_view eventName) {
  return R"(AppEvents\Schemes\Apps\Quorvane 1000\)" + std::string(eventName);
}

std::string CurrentKey(std::string_view eventName) {
  return SchemeKey(eventName) + R"(\.current)";
}

std::string LabelKey(std::string_view eventName) {
  return R"(AppEvents\EventLabels\)" + std::string(eventName);
}

}  // namespace

std::string EventSounds::VerbosityAnnounce(int index, bool wait) {
  switch (Table.VerbosityMode(index)) {
    case FeedbackMode::Sound: {
      const std::string_view eventName = Table.Entry(index).EventName;
      if (!PlayEventSound(eventName, wait)) {
        RegisterEventSound(index);
        PlayEventSound(eventName, wait);
      }
      return "";
    }
    case FeedbackMode::Spoken:
    case FeedbackMode::Spoken3:
    case FeedbackMode::Spoken4:
      return Table.VerbosityText(index);
    default:
      return "";
  }
}

bool EventSounds::PlayEventSound(std::string_view eventName, bool wait) {
  const auto path = Outside.RegistryStore.Read(CurrentKey(eventName), DefaultValue);
  if (!path || !Outside.Files.IsFile(*path) || !Outside.Sounds.Play(*path, wait)) return false;
  if (TellPlayed) TellPlayed(eventName);
  return true;
}

std::string EventSounds::EventSoundPath(int index) {
  const VerbosityEntry& entry = Table.Entry(index);
  if (entry.SoundCapable) {
    const auto path = Outside.RegistryStore.Read(CurrentKey(entry.EventName), DefaultValue);
    if (path && Outside.Files.IsFile(*path)) return *path;
  }
  return FolderLocations.SoundsFolder + "/" + std::string(entry.WaveFile);
}

void EventSounds::RegisterEventSound(int index) {
  const VerbosityEntry& entry = Table.Entry(index);
  // Without a name the keys would be those of the whole application.
  if (entry.EventName.empty()) return;
  const std::string& label = Messages.GetMessage(entry.LabelId);
  std::string error;
  if (!SetDefaultValue(SchemeKey(entry.EventName), label, error) ||
      !SetDefaultValue(CurrentKey(entry.EventName), EventSoundPath(index), error) ||
      !SetDefaultValue(LabelKey(entry.EventName), label, error))
    Log.WriteErrorLog(RegistryErrorCode, "Failure in SetVerbosityWaveName - " + error);
}

/// Writes nothing that is there already: on a machine without a sound device every list end comes here.
bool EventSounds::SetDefaultValue(const std::string& key, const std::string& text, std::string& error) {
  return Outside.RegistryStore.Read(key, DefaultValue) == text ||
         Outside.RegistryStore.Write(key, DefaultValue, text, error);
}

}  // namespace qves
