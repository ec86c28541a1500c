// The toolkit's application object: it says when an event has been handled.
#pragma once

#include <QAbstractEventDispatcher>
#include <QApplication>
#include <QThread>
#include <functional>
#include <utility>

namespace qves {

class TurnApplication : public QApplication {
 public:
  TurnApplication(int& argumentCount, char** arguments) : QApplication(argumentCount, arguments) {
    // What the toolkit sets off by itself, outside of any event.
    connect(QAbstractEventDispatcher::instance(), &QAbstractEventDispatcher::aboutToBlock, this,
            [this] { OnHandled(); });
  }

  /// Called after each event, with all that its handling has set off, and before the event loop waits.
  std::function<void()> OnHandled = [] {};

  bool notify(QObject* receiver, QEvent* event) override {
    // What is sent while an event is handled belongs to it; but a dialog's own event loop handles events of
    // its own.
    if (receiver->thread() != thread()) return QApplication::notify(receiver, event);
    const int loop = QThread::currentThread()->loopLevel();
    const bool isNested = loop == HandlingIn;
    const int outer = std::exchange(HandlingIn, loop);
    const bool result = QApplication::notify(receiver, event);
    HandlingIn = outer;
    if (!isNested) OnHandled();
    return result;
  }

 private:
  int HandlingIn = -1;  ///< the level of the event loop whose event is being handled; -1: none is
};

}  // namespace qves
