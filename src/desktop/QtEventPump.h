// The queue of the calculator's thread, run by the toolkit's event loop.
#pragma once

#include <QObject>

#include "posix/EventQueue.h"

namespace qves {

class QtEventPump : public EventPump {
 public:
  void Post(std::function<void()> event) override;
  /// Keys and clicks of the meantime are kept for later: a wait never runs a handler of theirs.
  void ProcessEvents(int waitMilliseconds) override;

  /// True inside ProcessEvents.
  bool IsWaiting() const { return Depth > 0; }
  /// From now on the pump does without the toolkit, whose display is gone.
  void Detach() { Detached = true; }

 private:
  EventQueue Queue;
  QObject Context;
  int Depth = 0;
  bool Detached = false;
};

}  // namespace qves
