#include "speech/Wake.h"

#include <sys/eventfd.h>
#include <unistd.h>

#include <algorithm>
#include <cstdint>
#include <iterator>
#include <limits>

namespace qves {
namespace {

// Rounded up, -1 for ever.
int MillisecondsTo(TimePoint deadline) {
  if (deadline == TimePoint::max()) return -1;
  const auto left = std::chrono::ceil<std::chrono::milliseconds>(deadline - SteadyClock::now()).count();
  return int(std::clamp<std::int64_t>(left, 0, std::numeric_limits<int>::max()));
}

}  // namespace

Wake::Wake() : Event(::eventfd(0, EFD_CLOEXEC | EFD_NONBLOCK)) {}

Wake::~Wake() {
  ::close(Event);
}

void Wake::Notify() {
  ::eventfd_write(Event, 1);
}

void Wake::Clear() {
  std::uint64_t count = 0;
  ::eventfd_read(Event, &count);
}

void Wake::Wait(TimePoint deadline) const {
  WaitFor({Event, POLLIN, 0}, deadline);
}

bool WaitFor(pollfd file, TimePoint deadline, int wake) {
  pollfd waited[] = {file, {wake, POLLIN, 0}};
  return ::poll(waited, std::size(waited), MillisecondsTo(deadline)) > 0 && waited[0].revents;
}

}  // namespace qves
