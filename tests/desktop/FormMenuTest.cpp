#include <QApplication>
#include <QMenu>

#include "WindowFixture.h"

namespace qves {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class FormMenuTest : public WindowFixture, private HintListener {
 protected:
  FormMenuTest() { Hints.SetListener(this); }
  ~FormMenuTest() override { Hints.SetListener(nullptr); }

  std::vector<std::string> TakeHints() { return std::exchange(Heard, {}); }

 private:
  void MenuItemHighlighted(std::string_view text, std::string_view mnemonic, bool hasSubMenu) override {
    MenuHasKeys = true;
    Heard.push_back(std::string(text) + "|" + std::string(mnemonic) + (hasSubMenu ? "|sub" : ""));
  }
  void MenusClosed(bool chosen) override {
    MenuHasKeys = false;
    Heard.push_back(chosen ? "closed with an item" : "closed");
  }

  std::vector<std::string> Heard;
};

/// The popup that has the keyboard.
QWindow* Popup() {
  return QApplication::activePopupWidget()->windowHandle();
}

TEST_F(FormMenuTest, EveryHighlightIsToldOnce) {
  Press(Qt::Key_F, Qt::AltModifier);
  EXPECT_THAT(TakeHints(), ElementsAre("Open...|O"));
  QTest::keyClick(Popup(), Qt::Key_Down);
  Settle();
  EXPECT_THAT(TakeHints(), ElementsAre("Exit|X"));
  QTest::keyClick(Popup(), Qt::Key_Right);
  Settle();
  EXPECT_THAT(TakeHints(), ElementsAre("Other & more|"));
  QTest::keyClick(Popup(), Qt::Key_Escape);
  Settle();
  EXPECT_THAT(TakeHints(), ElementsAre("View|V|sub"));
  QTest::qWait(2);  // a second Escape in the same millisecond would be a held one
  Press(Qt::Key_Escape);
  EXPECT_THAT(TakeHints(), ElementsAre("closed"));
  EXPECT_THAT(Shown.Take(), IsEmpty());
}

TEST_F(FormMenuTest, ChosenItemComesOnceAndAfterTheMenusClosed) {
  Press(Qt::Key_F, Qt::AltModifier);
  TakeHints();
  QTest::keyClick(Popup(), Qt::Key_Return);
  Settle();
  EXPECT_THAT(TakeHints(), ElementsAre("closed with an item"));
  EXPECT_THAT(Shown.Take(), ElementsAre("menu 11"));
  EXPECT_TRUE(Find<QLineEdit>("txtDisplay").hasFocus());
}

TEST_F(FormMenuTest, F10HighlightsTheFirstMenuAndEscapeGivesTheFocusBack) {
  Press(Qt::Key_F10);
  EXPECT_THAT(TakeHints(), ElementsAre("File|F|sub"));
  EXPECT_EQ(QApplication::activePopupWidget(), nullptr);
  Press(Qt::Key_Right);
  EXPECT_THAT(TakeHints(), ElementsAre("View|V|sub"));
  Press(Qt::Key_Escape);
  EXPECT_THAT(TakeHints(), ElementsAre("closed"));
  EXPECT_TRUE(Find<QLineEdit>("txtDisplay").hasFocus());
  EXPECT_THAT(Shown.Take(), IsEmpty());
}

TEST_F(FormMenuTest, F10AgainOrAClickBesideLeavesTheMenus) {
  Press(Qt::Key_F10);
  Press(Qt::Key_F10);
  EXPECT_THAT(TakeHints(), ElementsAre("File|F|sub", "closed"));
  EXPECT_TRUE(Find<QLineEdit>("txtDisplay").hasFocus());
  Press(Qt::Key_F10);
  QTest::mouseClick(Window.Menus(), Qt::LeftButton, {}, QPoint(Window.Menus()->width() - 2, 8));
  Settle();
  EXPECT_THAT(TakeHints(), ElementsAre("File|F|sub", "closed"));
  EXPECT_TRUE(Find<QLineEdit>("txtDisplay").hasFocus());
}

TEST_F(FormMenuTest, MouseOverTheBarTakesNoKeys) {
  QTest::mouseMove(Window.Menus(), QPoint(8, 8));
  Settle();
  EXPECT_THAT(TakeHints(), IsEmpty());
}

}  // namespace
}  // namespace qves
