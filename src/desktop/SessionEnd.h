// The ways in which a program is ended from outside.
#pragma once

#include <QSocketNotifier>
#include <functional>
#include <thread>

namespace qves {

/// Tells of SIGTERM, SIGHUP and SIGINT as an event of the event loop. One object at a time.
class EndSignals {
 public:
  explicit EndSignals(std::function<void()> ended);
  ~EndSignals();
  EndSignals(const EndSignals&) = delete;
  EndSignals& operator=(const EndSignals&) = delete;

 private:
  QSocketNotifier Incoming;
};

/// Calls `lost` when this thread exits the process while the object lives. The toolkit calls exit() in the
/// middle of its event loop when the display goes away; `lost` must not use the toolkit. One object a
/// process.
class LostDisplayGuard {
 public:
  explicit LostDisplayGuard(std::function<void()> lost);
  ~LostDisplayGuard();
  LostDisplayGuard(const LostDisplayGuard&) = delete;
  LostDisplayGuard& operator=(const LostDisplayGuard&) = delete;

 private:
  static void Exiting();

  const std::function<void()> Lost;
  const std::thread::id Owner = std::this_thread::get_id();
};

}  // namespace qves
