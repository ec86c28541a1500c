// The services, as they are handed to the forms.
#pragma once

#include "platform/Platform.h"
#include "services/AppSettings.h"
#include "services/ErrorLog.h"
#include "services/EventSounds.h"
#include "services/Folders.h"
#include "services/History.h"
#include "services/Messages.h"
#include "services/Settings.h"
#include "services/Speech.h"
#include "services/VerbosityTable.h"

namespace qves {

/// A number as it stands in a number base.
struct WrittenNumber {
  std::string Text;
  int Base = 0;
};

struct Services {
  AppSettings& Settings;
  SettingsFiles& SettingsStore;
  Folders& FolderLocations;
  MessageStore& Messages;
  ErrorLog& Log;
  SpeechService& Speech;
  VerbosityTable& Verbosity;
  Platform& Outside;
  EventSounds& Sounds;
  History& Past;
  WrittenNumber& Copied;  ///< what the calculator has put on the clipboard last
};

}  // namespace qves
