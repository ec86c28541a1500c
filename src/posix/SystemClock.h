// The machine's clock.
#pragma once

#include <optional>

#include "platform/Outside.h"

namespace qves {

class SystemClock : public Clock {
 public:
  /// With a date, today is that date.
  explicit SystemClock(std::optional<Date> today = {}) : FixedToday(today) {}

  std::int32_t TickCount() override;
  Date Today() override;
  std::string LocalDateTime() override;

 private:
  std::optional<Date> FixedToday;
};

}  // namespace qves
