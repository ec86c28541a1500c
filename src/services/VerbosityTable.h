// How list events are given: not at all, as words or as a sound.
#pragma once

#include <array>
#include <string>
#include <string_view>

#include "services/Messages.h"

namespace qves {

enum class FeedbackMode { Silent = 0, Spoken = 1, Sound = 2, Spoken3 = 3, Spoken4 = 4 };

/// Indexes of the entries in use.
inline constexpr int TopOfListEntry = 8;
inline constexpr int BottomOfListEntry = 9;
inline constexpr int ListPositionEntry = 10;
inline constexpr int NoFunctionEntry = 30;  ///< a key that does nothing

struct VerbosityEntry {
  int LabelId = 0;
  FeedbackMode Mode = FeedbackMode::Silent;
  int TextId = 0;  ///< message of the words; 0 none
  std::string_view EventName;
  std::string_view WaveFile;
  std::string_view SettingKey;
  std::string CustomText;  ///< replaces the message when not empty
  bool SoundCapable = true;
};

class VerbosityTable {
 public:
  explicit VerbosityTable(const MessageStore& messages) : Messages(messages) { Initialise(); }

  /// All entries as they are before any setting.
  void Initialise();
  /// A host setting whose key begins with "vrb": a mode (0 to 4), optionally a blank and the custom text.
  /// Anything else is ignored.
  void ApplySetting(std::string_view key, std::string_view value);
  /// `index` is 0 to 30.
  FeedbackMode VerbosityMode(int index) const { return Entry(index).Mode; }
  /// The words of an entry; "" for none.
  std::string VerbosityText(int index) const;
  const VerbosityEntry& Entry(int index) const { return Entries.at(static_cast<std::size_t>(index)); }

 private:
  const MessageStore& Messages;
  std::array<VerbosityEntry, 31> Entries;
};

}  // namespace qves
