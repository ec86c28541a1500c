#include "speech/Wake.h"

#include <poll.h>
#include <sys/eventfd.h>
#include <unistd.h>

#include <algorithm>
#include <cstdint>
#include <iterator>
#include <limits>

namespace qves {

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

void Wake::Wait(TimePoint deadline, int file, short events) const {
  pollfd waited[] = {{Event, POLLIN, 0}, {file, events, 0}};
  ::poll(waited, std::size(waited), MillisecondsTo(deadline));
}

bool Wake::Notified() const {
  pollfd event{Event, POLLIN, 0};
  return ::poll(&event, 1, 0) > 0;
}

int MillisecondsTo(TimePoint deadline) {
  if (deadline == TimePoint::max()) return -1;
  const auto left = std::chrono::ceil<std::chrono::milliseconds>(deadline - SteadyClock::now()).count();
  return int(std::clamp<std::int64_t>(left, 0, std::numeric_limits<int>::max()));
}

}  // namespace qves
