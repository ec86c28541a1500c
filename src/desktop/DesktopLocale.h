// The locale of the desktop: LC_ALL, LC_NUMERIC, LANG, the first that is set.
#pragma once

#include <QLocale>

#include "platform/Outside.h"

namespace qves {

class DesktopLocale : public Locale {
 public:
  bool WritesDecimalComma() override { return QLocale::system().decimalPoint() == QLatin1String(","); }
};

}  // namespace qves
