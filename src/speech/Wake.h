// What the speech thread waits with.
#pragma once

#include <poll.h>

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
  /// Returns when it has been notified since it was cleared, or at the deadline.
  void Wait(TimePoint deadline) const;
  /// Readable when it has been notified.
  int Descriptor() const { return Event; }

 private:
  int Event;
};

/// True as soon as the file has what is waited for, as of poll. False at the deadline, or when the file
/// `wake`, where one is given, is readable.
bool WaitFor(pollfd file, TimePoint deadline, int wake = -1);

}  // namespace qves
