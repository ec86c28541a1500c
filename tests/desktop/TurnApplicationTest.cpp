#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <QEventLoop>
#include <QTimer>

#include "desktop/TurnApplication.h"

namespace qves {
namespace {

using testing::ElementsAre;

class TurnApplicationTest : public testing::Test {
 protected:
  TurnApplicationTest() {
    QCoreApplication::processEvents();
    Application.OnHandled = [this] { Note("turn"); };
  }
  ~TurnApplicationTest() override {
    Application.OnHandled = [] {};
  }

  /// Turns in which nothing was done are as one.
  void Note(const std::string& what) {
    if (what != "turn" || Log.empty() || Log.back() != what) Log.push_back(what);
  }
  void Post(std::function<void()> event) {
    QMetaObject::invokeMethod(&Receiver, std::move(event), Qt::QueuedConnection);
  }

  TurnApplication& Application = *static_cast<TurnApplication*>(qApp);
  QObject Receiver;
  std::vector<std::string> Log;
};

TEST_F(TurnApplicationTest, EndsATurnAfterEachEventWithAllThatItSendsOff) {
  Post([this] {
    QEvent sent(QEvent::User);
    QCoreApplication::sendEvent(&Receiver, &sent);
    Note("first");
  });
  Post([this] { Note("second"); });
  QCoreApplication::processEvents();
  EXPECT_THAT(Log, ElementsAre("first", "turn", "second", "turn"));
}

TEST_F(TurnApplicationTest, EventsOfADialogsLoopAreTurnsOfTheirOwn) {
  Post([this] {
    Note("opens");
    QEventLoop dialog;
    Post([this] { Note("inside"); });
    Post([&] { dialog.quit(); });
    dialog.exec();
    Note("closed");
  });
  QCoreApplication::processEvents();
  EXPECT_THAT(Log, ElementsAre("opens", "turn", "inside", "turn", "closed", "turn"));
}

TEST_F(TurnApplicationTest, EndsTheTurnBeforeTheLoopWaits) {
  QTimer::singleShot(20, [this] { Note("woken"); });
  Log = {"set off outside of any event"};
  QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
  EXPECT_THAT(Log, ElementsAre("set off outside of any event", "turn", "woken", "turn"));
}

}  // namespace
}  // namespace qves
