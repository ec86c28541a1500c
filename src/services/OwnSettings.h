// The settings that the calculator has beside the host product's: what each may be, by the words of the
// settings file.
#pragma once

#include <span>
#include <string_view>

#include "services/AppSettings.h"

namespace qves {

struct OwnSetting {
  std::string_view Key;
  std::span<const std::string_view> Values;  ///< the usual one first
  int (*Chosen)(const AppSettings&);         ///< the number of the value, from 0
  void (*Choose)(AppSettings&, int value);
};

/// All of them, in the order in which they are written.
std::span<const OwnSetting> OwnSettings();

}  // namespace qves
