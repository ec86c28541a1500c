// The calculator's own settings beside the view: what each may be, and how they stand in the file.
#pragma once

#include <string>
#include <string_view>

#include "services/AppSettings.h"

namespace qves {

struct NumberRange {
  int From = 0;
  int To = 0;
};

inline constexpr NumberRange SpeedRange = {80, 450};  ///< words per minute
/// Percent. A voice that cannot be heard at all is turned off in another way.
inline constexpr NumberRange VolumeRange = {5, 100};

/// Stores the setting of that key, whatever the case of the word. Why it cannot be, "" when it can or when
/// the key is none of them.
std::string StoreOwnSetting(AppSettings& settings, std::string_view key, std::string_view word);

/// A line of the settings file for each setting that is not as it is by default.
std::string OwnSettingLines(const AppSettings& settings);

}  // namespace qves
