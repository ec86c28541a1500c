#include <QAccessible>
#include <QApplication>
#include <QLabel>

#include "WindowFixture.h"

namespace qves {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

using FormWindowTest = WindowFixture;

TEST_F(FormWindowTest, TabMovesOnceAndSkipsWhatCannotHaveTheFocus) {
  Press(Qt::Key_Tab);
  Press(Qt::Key_Tab);
  EXPECT_THAT(Shown.Take(), ElementsAre("focus txtMemory", "focus txtTape"));
  Press(Qt::Key_Tab);
  Press(Qt::Key_Tab);
  Press(Qt::Key_Tab);  // over the disabled one
  EXPECT_THAT(Shown.Take(), ElementsAre("focus cmdA", "focus cmdB", "focus cmdEqual"));
  EXPECT_TRUE(Find<QPushButton>("cmdEqual").hasFocus());
  Press(Qt::Key_Backtab, Qt::ShiftModifier);
  EXPECT_THAT(Shown.Take(), ElementsAre("focus cmdB"));
  EXPECT_TRUE(Find<QPushButton>("cmdB").hasFocus());
}

TEST_F(FormWindowTest, SpaceAndEnterPressOnce) {
  Press(Qt::Key_Return);
  EXPECT_THAT(Shown.Take(), ElementsAre("click cmdEqual"));
  Shown.FocusByUser(*Shown.Find("cmdA"));
  Shown.Take();
  Press(Qt::Key_Space);
  Press(Qt::Key_Return);
  EXPECT_THAT(Shown.Take(), ElementsAre("click cmdA", "click cmdA"));
  Press(Qt::Key_Down);  // no toolkit's wandering between buttons
  EXPECT_THAT(Shown.Take(), IsEmpty());
  EXPECT_TRUE(Find<QPushButton>("cmdA").hasFocus());
}

TEST_F(FormWindowTest, ARepetitionOfAHeldKeyIsToldAsOne) {
  Press(Qt::Key_F3);
  EXPECT_FALSE(LastKey.Held);
  QKeyEvent repetition(QEvent::KeyPress, Qt::Key_F3, Qt::NoModifier, QString(), true);
  QCoreApplication::sendEvent(Window.windowHandle(), &repetition);
  EXPECT_TRUE(LastKey.Held);
}

TEST_F(FormWindowTest, MouseClickFocusesAndClicksOnce) {
  QTest::mouseClick(&Find<QPushButton>("cmdB"), Qt::LeftButton);
  EXPECT_THAT(Shown.Take(), ElementsAre("focus cmdB", "click cmdB"));
  QTest::mouseClick(&Find<QPushButton>("cmdB"), Qt::LeftButton);
  EXPECT_THAT(Shown.Take(), ElementsAre("click cmdB"));
  QTest::mouseClick(&Find<QPushButton>("cmdOff"), Qt::LeftButton);
  EXPECT_THAT(Shown.Take(), IsEmpty());
  QTest::mouseClick(Find<QPlainTextEdit>("txtTape").viewport(), Qt::LeftButton);
  EXPECT_THAT(Shown.Take(), ElementsAre("focus txtTape", "click txtTape"));
  QTest::mouseClick(&Find<QLineEdit>("txtMemory"), Qt::LeftButton);
  EXPECT_THAT(Shown.Take(), ElementsAre("focus txtMemory", "click txtMemory"));
}

TEST_F(FormWindowTest, ClickOnTheDisplaySelectsItsText) {
  Shown.Show("txtDisplay", "-12.5");
  QTest::mouseClick(&Find<QLineEdit>("txtDisplay"), Qt::LeftButton);
  EXPECT_THAT(Shown.Take(), ElementsAre("click txtDisplay"));
  EXPECT_EQ(Find<QLineEdit>("txtDisplay").selectedText(), "-12.5");
}

TEST_F(FormWindowTest, FocusFollowsTheFormWithoutEcho) {
  Shown.SetFocus(*Shown.Find("cmdB"));
  Settle();
  EXPECT_TRUE(Find<QPushButton>("cmdB").hasFocus());
  EXPECT_THAT(Shown.Take(), ElementsAre("focus cmdB"));
  // What the window manager does when another window was in front.
  Find<QPushButton>("cmdB").clearFocus();
  Find<QPushButton>("cmdB").setFocus(Qt::ActiveWindowFocusReason);
  EXPECT_THAT(Shown.Take(), IsEmpty());
}

TEST_F(FormWindowTest, ScreenReaderFocusesAndPresses) {
  QAccessibleInterface* button = QAccessible::queryAccessibleInterface(&Find<QPushButton>("cmdA"));
  ASSERT_TRUE(button);
  EXPECT_EQ(button->text(QAccessible::Name), "cmdA spoken");
  EXPECT_EQ(button->text(QAccessible::Description), "cmdA help");
  EXPECT_EQ(button->role(), QAccessible::Button);
  button->actionInterface()->doAction(QAccessibleActionInterface::setFocusAction());
  EXPECT_THAT(Shown.Take(), ElementsAre("focus cmdA"));
  button->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
  EXPECT_TRUE(QTest::qWaitFor([&] { return !Find<QPushButton>("cmdA").isDown(); }));
  EXPECT_THAT(Shown.Take(), ElementsAre("click cmdA"));

  Shown.Show("txtDisplay", "12");
  QAccessibleInterface* display = QAccessible::queryAccessibleInterface(&Find<QLineEdit>("txtDisplay"));
  EXPECT_EQ(display->text(QAccessible::Name), "txtDisplay spoken");
  EXPECT_EQ(display->text(QAccessible::Value), "12");
  EXPECT_TRUE(display->state().readOnly);
}

TEST_F(FormWindowTest, TapeGrowsAtItsEnd) {
  auto& tape = Find<QPlainTextEdit>("txtTape");
  Shown.Append("1 + 1 = 2\r\n");
  Shown.Append("é + 2 = 4\r\n");
  EXPECT_EQ(tape.toPlainText(), "1 + 1 = 2\né + 2 = 4\n");
  EXPECT_TRUE(tape.textCursor().atEnd());
  Shown.Move(std::string_view("1 + 1 = 2\r\né").size());
  EXPECT_EQ(tape.textCursor().position(), QString("1 + 1 = 2\né").size());
  Shown.Select("txtTape");
  EXPECT_EQ(tape.textCursor().selectedText().size(), tape.toPlainText().size());
  Shown.Show("txtTape", "");
  EXPECT_EQ(tape.toPlainText(), "");
}

TEST_F(FormWindowTest, LinesAreNoControlsAndNeverWidenTheWindow) {
  const auto labels = Window.centralWidget()->findChildren<QLabel*>();
  ASSERT_EQ(labels.size(), 2);
  const auto nameOf = [&](int label) {
    return QAccessible::queryAccessibleInterface(labels[label])->text(QAccessible::Name);
  };
  EXPECT_EQ(nameOf(0), "Open");
  const QSize before = Window.size();
  const std::string open(40000, '(');
  Shown.ShowLines(open, "All registers are 0.");
  Settle();
  EXPECT_EQ(nameOf(0).toStdString(), "Open: " + open);
  EXPECT_EQ(nameOf(1), "Status: All registers are 0.");
  EXPECT_EQ(Window.size(), before);
  EXPECT_LT(Window.minimumSizeHint().width(), before.width() + 1);
  EXPECT_LT(labels[0]->geometry().bottom(),
            Find<QLineEdit>("txtDisplay").mapTo(Window.centralWidget(), QPoint()).y());
  for (const QLabel* label : labels) {
    EXPECT_EQ(label->focusPolicy(), Qt::NoFocus);
    EXPECT_EQ(QAccessible::queryAccessibleInterface(const_cast<QLabel*>(label))->role(),
              QAccessible::StaticText);
  }
}

TEST_F(FormWindowTest, LongTapeStaysCheap) {
  constexpr int Lines = 20000;
  QElapsedTimer timer;
  timer.start();
  for (int i = 0; i < Lines; ++i) Shown.Append("7 + 5 = 12\r\n");
  // Copying the whole tape for each line would take minutes.
  EXPECT_LT(timer.elapsed(), 10000);
  EXPECT_EQ(Find<QPlainTextEdit>("txtTape").blockCount(), Lines + 1);
}

TEST_F(FormWindowTest, NextFormTakesTheWindow) {
  TestForm next("Next");
  Window.DropForm();
  QTest::mouseClick(Window.centralWidget()->findChild<QPushButton*>(), Qt::LeftButton);
  EXPECT_THAT(Shown.Take(), IsEmpty());
  Window.ShowForm(next);
  Settle();
  EXPECT_EQ(Window.windowTitle(), "Next");
  Press(Qt::Key_Return);
  EXPECT_THAT(next.Take(), ElementsAre("click cmdEqual"));
  QTest::mouseClick(&Find<QPushButton>("cmdA", next), Qt::LeftButton);
  EXPECT_THAT(next.Take(), ElementsAre("focus cmdA", "click cmdA"));
  EXPECT_THAT(Shown.Take(), IsEmpty());
  Window.DropForm();
}

TEST_F(FormWindowTest, HostSettingsColourTheDisplay) {
  const auto& display = Find<QLineEdit>("txtDisplay");
  EXPECT_EQ(display.palette().color(QPalette::Base), QApplication::palette().color(QPalette::Base));
  Settings.HostFileFound = true;
  Settings.TextColor = 14;
  Settings.BackColor = 99;  // no colour: the usual black
  Settings.FontSize = 31;
  Settings.BoldFont = true;
  TestForm next;
  Window.ShowForm(next);
  const auto& coloured = Find<QLineEdit>("txtDisplay", next);
  EXPECT_EQ(coloured.palette().color(QPalette::Text), QColor("yellow"));
  EXPECT_EQ(coloured.palette().color(QPalette::Base), QColor("black"));
  EXPECT_EQ(coloured.font().pointSize(), 31);
  EXPECT_TRUE(Find<QPlainTextEdit>("txtTape", next).font().bold());
  EXPECT_FALSE(Find<QLineEdit>("txtMemory", next).font().bold());
  Window.DropForm();
}

}  // namespace
}  // namespace qves
