// Whether the user writes numbers with a decimal comma.
#pragma once

#include "platform/Outside.h"
#include "services/AppSettings.h"

namespace qves {

/// As the setting says, or as the desktop's language does.
inline bool WritesDecimalComma(const AppSettings& settings, Locale& language) {
  return settings.DecimalComma == DecimalCommaOn ||
         (settings.DecimalComma == DecimalCommaAuto && language.WritesDecimalComma());
}

}  // namespace qves
