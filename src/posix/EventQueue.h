// The event queue of a program without a toolkit.
#pragma once

#include <condition_variable>
#include <deque>
#include <mutex>

#include "platform/Outside.h"

namespace qves {

class EventQueue : public EventPump {
 public:
  void Post(std::function<void()> event) override;
  void ProcessEvents(int waitMilliseconds) override;

 private:
  std::mutex Guard;
  std::condition_variable Arrived;
  std::deque<std::function<void()>> Pending;
};

}  // namespace qves
