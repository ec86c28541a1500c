#include <QAccessible>
#include <QAccessibleTableInterface>
#include <QApplication>
#include <QCheckBox>
#include <QListView>

#include "WindowFixture.h"

namespace qves {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class ChoiceWidgetsTest : public WindowFixture {
 protected:
  QCheckBox& Box() { return Find<QCheckBox>("cbInv"); }
  QListView& List() { return Find<QListView>("lltMode"); }
  /// The rows that the list shows as selected; the current one must be the same.
  std::vector<int> SelectedRows() {
    std::vector<int> rows;
    for (const QModelIndex& index : List().selectionModel()->selectedRows()) rows.push_back(index.row());
    EXPECT_THAT(rows, ElementsAre(List().currentIndex().row()));
    return rows;
  }
  void ClickItem(int row, Qt::MouseButton button = Qt::LeftButton) {
    QTest::mouseClick(List().viewport(), button, Qt::NoModifier, RectOf(row).center());
    Settle();
  }
  QRect RectOf(int row) { return List().visualRect(List().model()->index(row, 0)); }
  void GoTo(std::string_view name) {
    Shown.FocusByUser(*Shown.Find(name));
    Shown.Take();
  }
  static QAccessibleInterface& Read(QWidget& widget) {
    return *QAccessible::queryAccessibleInterface(&widget);
  }
};

TEST_F(ChoiceWidgetsTest, CheckBoxTurnsOverOnceForEachClickAndKey) {
  const QPoint far(Box().width() - 2, Box().height() - 2);  // beside the text, inside the border
  QTest::mouseClick(&Box(), Qt::LeftButton, Qt::NoModifier, far);
  EXPECT_THAT(Shown.Take(), ElementsAre("focus cbInv", "click cbInv"));
  EXPECT_TRUE(Shown.Inv().Checked);
  EXPECT_TRUE(Box().isChecked());
  Press(Qt::Key_Space);
  EXPECT_THAT(Shown.Take(), ElementsAre("click cbInv"));
  EXPECT_FALSE(Shown.Inv().Checked);
  EXPECT_FALSE(Box().isChecked());
  QTest::mouseClick(&Box(), Qt::RightButton);
  Press(Qt::Key_Space, Qt::AltModifier);
  Press(Qt::Key_Down);
  EXPECT_THAT(Shown.Take(), IsEmpty());
  EXPECT_FALSE(Box().isChecked());
}

TEST_F(ChoiceWidgetsTest, FormsChangesAreShownWithoutEcho) {
  Shown.Check(true);
  Shown.Place(2);
  EXPECT_TRUE(Box().isChecked());
  EXPECT_THAT(SelectedRows(), ElementsAre(2));
  Shown.Check(false);
  Shown.Place(1);
  EXPECT_FALSE(Box().isChecked());
  EXPECT_THAT(SelectedRows(), ElementsAre(1));
  EXPECT_THAT(Shown.Take(), IsEmpty());
}

TEST_F(ChoiceWidgetsTest, ClickOnAnItemFocusesAndChoosesOnce) {
  ClickItem(1);
  EXPECT_THAT(Shown.Take(), ElementsAre("focus lltMode", "choose lltMode Radians"));
  EXPECT_TRUE(List().hasFocus());
  EXPECT_THAT(SelectedRows(), ElementsAre(1));
  ClickItem(1);
  ClickItem(2, Qt::RightButton);
  EXPECT_THAT(Shown.Take(), IsEmpty());
  EXPECT_THAT(SelectedRows(), ElementsAre(1));
}

TEST_F(ChoiceWidgetsTest, SweepChoosesWhereItEnds) {
  QTest::mousePress(List().viewport(), Qt::LeftButton, Qt::NoModifier, RectOf(1).center());
  QTest::mouseMove(List().viewport(), RectOf(2).center());
  EXPECT_THAT(SelectedRows(), ElementsAre(0));
  QTest::mouseRelease(List().viewport(), Qt::LeftButton, Qt::NoModifier, RectOf(2).center());
  EXPECT_THAT(Shown.Take(), ElementsAre("focus lltMode", "choose lltMode Grads"));
}

TEST_F(ChoiceWidgetsTest, KeysOfTheListActOnceAndThroughTheForm) {
  GoTo("lltMode");
  Press(Qt::Key_Down);
  EXPECT_THAT(Shown.Take(), ElementsAre("choose lltMode Radians"));
  EXPECT_THAT(SelectedRows(), ElementsAre(1));
  Press(Qt::Key_End);
  Press(Qt::Key_Up);
  EXPECT_THAT(Shown.Take(), ElementsAre("choose lltMode Grads", "choose lltMode Radians"));
  // Letters are the calculator's: no search for an item, and no item opened, copied or turned off.
  for (const Qt::Key key : {Qt::Key_D, Qt::Key_G, Qt::Key_Space, Qt::Key_F2}) Press(key);
  Press(Qt::Key_Space, Qt::ControlModifier);
  Press(Qt::Key_A, Qt::ControlModifier);
  EXPECT_THAT(Shown.Take(), IsEmpty());
  EXPECT_THAT(SelectedRows(), ElementsAre(1));
}

TEST_F(ChoiceWidgetsTest, DisabledOnesDoNothingAndLeaveTheFocusToTheForm) {
  GoTo("lltMode");
  Shown.Enable("lltMode", false);
  Shown.Enable("cbInv", false);
  ClickItem(1);  // the toolkit has taken the focus elsewhere
  QTest::mouseClick(&Box(), Qt::LeftButton);
  Read(Box()).actionInterface()->doAction(QAccessibleActionInterface::toggleAction());
  Read(List()).tableInterface()->selectRow(2);
  EXPECT_THAT(Shown.Take(), IsEmpty());
  EXPECT_FALSE(Box().isChecked());
  EXPECT_THAT(SelectedRows(), ElementsAre(0));
  Shown.Enable("cbInv", true);
  EXPECT_TRUE(Box().isEnabled());
}

TEST_F(ChoiceWidgetsTest, ScreenReaderTogglesTheCheckBoxOnce) {
  QAccessibleInterface& box = Read(Box());
  EXPECT_EQ(box.role(), QAccessible::CheckBox);
  EXPECT_EQ(box.text(QAccessible::Name), "cbInv spoken");
  EXPECT_EQ(box.text(QAccessible::Description), "cbInv help");
  EXPECT_TRUE(box.state().checkable);
  EXPECT_FALSE(box.state().checked);
  box.actionInterface()->doAction(QAccessibleActionInterface::toggleAction());
  EXPECT_THAT(Shown.Take(), ElementsAre("focus cbInv", "click cbInv"));
  EXPECT_TRUE(Shown.Inv().Checked);
  EXPECT_TRUE(box.state().checked);
  box.actionInterface()->doAction(QAccessibleActionInterface::pressAction());
  EXPECT_TRUE(QTest::qWaitFor([&] { return !Box().isDown(); }));
  EXPECT_THAT(Shown.Take(), ElementsAre("click cbInv"));
  EXPECT_FALSE(box.state().checked);
}

TEST_F(ChoiceWidgetsTest, ScreenReaderSelectsThroughTheForm) {
  QAccessibleInterface& list = Read(List());
  list.tableInterface()->selectRow(1);
  EXPECT_THAT(Shown.Take(), ElementsAre("focus lltMode", "choose lltMode Radians"));
  EXPECT_THAT(SelectedRows(), ElementsAre(1));
  const QString toggle = QAccessibleActionInterface::toggleAction();
  list.child(2)->actionInterface()->doAction(toggle);
  EXPECT_THAT(Shown.Take(), ElementsAre("choose lltMode Grads"));
  // One item is chosen at all times.
  list.child(2)->actionInterface()->doAction(toggle);
  list.tableInterface()->unselectRow(2);
  EXPECT_THAT(Shown.Take(), IsEmpty());
  EXPECT_THAT(SelectedRows(), ElementsAre(2));
}

TEST_F(ChoiceWidgetsTest, WidgetsOutliveTheirForm) {
  auto gone = std::make_unique<TestForm>();
  Window.ShowForm(*gone);
  Settle();
  auto& box = Find<QCheckBox>("cbInv", *gone);
  auto& list = Find<QListView>("lltMode", *gone);
  const auto use = [&] {
    QTest::mouseClick(&box, Qt::LeftButton);
    QTest::mouseClick(list.viewport(), Qt::LeftButton);
    Read(list).tableInterface()->selectRow(1);
    list.setFocus();
    EXPECT_FALSE(box.isChecked());
    EXPECT_EQ(list.model()->rowCount(), 0);
  };
  Window.DropForm();
  gone.reset();
  use();
  Window.grab();
  Window.ShowForm(Shown);
  use();  // they are deleted later
  EXPECT_THAT(Shown.Take(), IsEmpty());
}

TEST_F(ChoiceWidgetsTest, LargeFontsFit) {
  const QFont usual = QApplication::font();
  QFont large = usual;
  large.setPointSizeF(usual.pointSizeF() * 2);
  const int lineOfDisplay = Find<QLineEdit>("txtDisplay").fontMetrics().height();
  const int widthOfButtons = Find<QPushButton>("cmdA").minimumSizeHint().width();
  QApplication::setFont(large);
  Window.adjustSize();
  Settle();
  const QRect last = RectOf(List().model()->rowCount() - 1);
  EXPECT_TRUE(List().viewport()->rect().contains(last));
  EXPECT_GE(last.height(), QFontMetrics(large).height());
  EXPECT_GE(List().viewport()->y(), QFontMetrics(large).height());  // the caption
  EXPECT_GE(Find<QLineEdit>("txtDisplay").fontMetrics().height(), 2 * lineOfDisplay - 2);
  EXPECT_GT(Find<QPushButton>("cmdA").minimumSizeHint().width(), widthOfButtons);
  QApplication::setFont(usual);
}

}  // namespace
}  // namespace qves
