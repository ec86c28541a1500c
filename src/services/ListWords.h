// What every list says of itself.
#pragma once

#include <string>

#include "services/Services.h"

namespace qves {

/// The place of an item (from 0) behind its text, " 2 of 5"; "" where the user does not want to hear it.
inline std::string ListPlaceWords(Services& services, int item, int count) {
  const std::string place = services.Sounds.VerbosityAnnounce(ListPositionEntry, false);
  if (place.empty()) return "";
  return " " + FillPlaceholders(place, {std::to_string(item + 1), std::to_string(count)});
}

/// Says, or plays, that the list ends there: at its top for a step below 0.
inline void TellListEnd(Services& services, int step) {
  const std::string words =
      services.Sounds.VerbosityAnnounce(step < 0 ? TopOfListEntry : BottomOfListEntry, false);
  if (!words.empty()) services.Speech.SpeakText(words);
}

}  // namespace qves
