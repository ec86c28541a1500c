// What the speech thread waits with.
#pragma once

#include <chrono>

namespace qves {

using SteadyClock = std::chrono::steady_clock;
using TimePoint = SteadyClock::time_point;

/// Wakes one thread. That thread clears it, looks at what may have changed, and then waits: nothing is
/// missed.
class Wake {
 public:
  Wake();
  ~Wake();
  Wake(const Wake&) = delete;
  Wake& operator=(const Wake&) = delete;

  /// From any thread.
  void Notify();
  void Clear();
  /// Returns when it has been notified since it was cleared, or at the deadline, or when one of `events` (as
  /// of poll) holds for `file`.
  void Wait(TimePoint deadline, int file = -1, short events = 0) const;
  bool Notified() const;
  /// Readable when it has been notified.
  int Descriptor() const { return Event; }

 private:
  int Event;
};

/// From now to the deadline in milliseconds for poll: rounded up, -1 for ever.
int MillisecondsTo(TimePoint deadline);

}  // namespace qves
