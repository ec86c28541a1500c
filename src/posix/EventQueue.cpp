#include "posix/EventQueue.h"

#include <chrono>
#include <utility>

namespace qves {

void EventQueue::Post(std::function<void()> event) {
  {
    const std::lock_guard lock(Guard);
    Pending.push_back(std::move(event));
  }
  Arrived.notify_one();
}

void EventQueue::ProcessEvents(int waitMilliseconds) {
  std::unique_lock lock(Guard);
  if (waitMilliseconds > 0)
    Arrived.wait_for(lock, std::chrono::milliseconds(waitMilliseconds), [this] { return !Pending.empty(); });
  while (!Pending.empty()) {
    const auto event = std::move(Pending.front());
    Pending.pop_front();
    lock.unlock();
    event();
    lock.lock();
  }
}

}  // namespace qves
