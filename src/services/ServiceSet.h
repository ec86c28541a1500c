// Owns the services of one run.
#pragma once

#include "services/Services.h"

namespace qves {

class ServiceSet {
 public:
  explicit ServiceSet(Platform& platform)
      : Log(platform.Files, platform.Time),
        Messages(platform.Files, platform.Directories, Log),
        Verbosity(Messages),
        SettingsStore(Settings, FolderLocations, Messages, Verbosity, Log, platform),
        Speech(platform, Settings, Messages),
        Sounds(Verbosity, Messages, FolderLocations, Log, platform),
        Past(platform, Settings, Log),
        All{Settings,  SettingsStore, FolderLocations, Messages, Log,   Speech,
            Verbosity, platform,      Sounds,          Past,     Copied} {}
  ServiceSet(const ServiceSet&) = delete;
  ServiceSet& operator=(const ServiceSet&) = delete;

 private:
  AppSettings Settings;
  Folders FolderLocations;
  ErrorLog Log;
  MessageStore Messages;
  VerbosityTable Verbosity;
  SettingsFiles SettingsStore;
  SpeechService Speech;
  EventSounds Sounds;
  History Past;
  WrittenNumber Copied;

 public:
  Services All;
};

}  // namespace qves
