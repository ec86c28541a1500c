// A locale that is told how it writes.
#pragma once

#include "platform/Outside.h"

namespace qves {

class GivenLocale : public Locale {
 public:
  explicit GivenLocale(bool decimalComma) : DecimalComma(decimalComma) {}
  bool WritesDecimalComma() override { return DecimalComma; }

 private:
  const bool DecimalComma;
};

}  // namespace qves
