// Gives the feedback of list events: words for the caller to speak, or the sound that the user has assigned
// to the event in the platform's sound-event scheme.
#pragma once

#include <functional>
#include <string>
#include <string_view>

#include "platform/Platform.h"
#include "services/ErrorLog.h"
#include "services/Folders.h"
#include "services/Messages.h"
#include "services/VerbosityTable.h"

namespace qves {

class EventSounds {
 public:
  EventSounds(const VerbosityTable& table, const MessageStore& messages, const Folders& folders,
              ErrorLog& log, Platform& platform)
      : Table(table), Messages(messages), FolderLocations(folders), Log(log), Outside(platform) {}

  /// Gives the feedback of an entry (0 to 30). The text that the caller is to speak; "" when there is none.
  /// With `wait` a sound has ended on return. Without a sound that can be played there is silence.
  std::string VerbosityAnnounce(int index, bool wait);
  /// Plays the sound that is assigned to the event; true when it played.
  bool PlayEventSound(std::string_view eventName, bool wait);
  /// The file of an entry's sound: the assigned one where that exists, else the entry's own.
  std::string EventSoundPath(int index);
  /// Assigns the file of the entry's sound to its event. A failure is written to the error log.
  void RegisterEventSound(int index);

  /// Is told the name of each event whose sound played.
  void OnPlayed(std::function<void(std::string_view eventName)> tell) { TellPlayed = std::move(tell); }

 private:
  bool SetDefaultValue(const std::string& key, const std::string& text, std::string& error);

  const VerbosityTable& Table;
  const MessageStore& Messages;
  const Folders& FolderLocations;
  ErrorLog& Log;
  Platform& Outside;
  std::function<void(std::string_view)> TellPlayed;
};

}  // namespace qves
