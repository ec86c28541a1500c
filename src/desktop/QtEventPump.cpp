#include "desktop/QtEventPump.h"

#include <QCoreApplication>
#include <QTimer>

namespace qves {

void QtEventPump::Post(std::function<void()> event) {
  Queue.Post(std::move(event));
  QMetaObject::invokeMethod(
      &Context, [this] { Queue.ProcessEvents(0); }, Qt::QueuedConnection);
}

void QtEventPump::ProcessEvents(int waitMilliseconds) {
  if (Detached) return Queue.ProcessEvents(waitMilliseconds);
  ++Depth;
  QEventLoop::ProcessEventsFlags flags = QEventLoop::ExcludeUserInputEvents;
  QTimer limit;
  if (waitMilliseconds > 0) {
    limit.setSingleShot(true);
    limit.start(waitMilliseconds);
    flags |= QEventLoop::WaitForMoreEvents;
  }
  QCoreApplication::processEvents(flags);
  --Depth;
}

}  // namespace qves
