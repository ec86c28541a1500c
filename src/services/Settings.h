// Reads and writes the settings files, and finds the folders.
#pragma once

#include <string>

#include "platform/Platform.h"
#include "services/AppSettings.h"
#include "services/ErrorLog.h"
#include "services/Folders.h"
#include "services/Messages.h"
#include "services/VerbosityTable.h"

namespace qves {

class SettingsFiles {
 public:
  SettingsFiles(AppSettings& settings, Folders& folders, MessageStore& messages, VerbosityTable& verbosity,
                ErrorLog& log, Platform& platform)
      : Settings(settings),
        FolderLocations(folders),
        Messages(messages),
        Verbosity(verbosity),
        Log(log),
        Outside(platform) {}

  /// Fills the settings record, the folders and the host's messages at start-up. A missing file leaves the
  /// defaults; a fault in a file ends its reading there, the values read so far stay, and the fault is
  /// written to the error log.
  void ReadSettings();
  /// Rewrites the calculator's own settings file. A failure is written to the error log.
  void SaveSettings();

 private:
  void SetDefaults();
  void FindDataFolder();
  void FindDocuments();
  void ReadHostFile();
  void ReadOwnFile();
  std::string_view StoreHostSetting(const std::string& key, const std::string& value);
  template <class Store>
  bool ReadPairs(const std::string& path, Store store);

  AppSettings& Settings;
  Folders& FolderLocations;
  MessageStore& Messages;
  VerbosityTable& Verbosity;
  ErrorLog& Log;
  Platform& Outside;
};

}  // namespace qves
