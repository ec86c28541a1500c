#include <QApplication>
#include <QFileDialog>
#include <QListView>
#include <QMessageBox>
#include <QSettings>
#include <QTemporaryDir>
#include <QTimer>

#include "WindowFixture.h"

namespace qves {
namespace {

using testing::AllOf;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

class FileDialogTest : public WindowFixture {
 protected:
  FileDialogTest() {
    QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope, Home.path());
    for (const char* name : {"points.txt", "other.txt", "picture.png"})
      QFile(Home.filePath(name)).open(QIODevice::WriteOnly);
    FileDialog.Owner = [this] { return &Window; };
    FileDialog.Says.Speak = [this](const std::string& text) { Spoken.push_back(text); };
    FileDialog.Says.Message = [](int id) { return "%% is " + std::to_string(id); };
  }

  FileDialogSpec Spec() {
    return {"Pick one", "Text Files|*.txt|Tables|*.csv;*.tsv", "txt", Home.path().toStdString()};
  }
  /// Shows the dialog and lets `use` use it; `use` must see to it that the dialog is left.
  std::string Show(const FileDialogSpec& spec, const std::function<void(QFileDialog&)>& use) {
    QTimer::singleShot(0, [&] {
      auto* dialog = qobject_cast<QFileDialog*>(QApplication::activeModalWidget());
      EXPECT_TRUE(QTest::qWaitFor([&] { return dialog && dialog->isActiveWindow(); }));
      if (dialog) use(*dialog);
      if (FileDialog.IsOpen()) FileDialog.CloseFront();  // whatever has failed
    });
    return FileDialog.Show(spec);
  }
  static void Type(QFileDialog& dialog, const QString& text) {
    for (const QChar letter : text) QTest::keyClick(dialog.windowHandle(), letter.toLatin1());
  }
  static void Cancel(QFileDialog& dialog) { QTest::keyClick(dialog.windowHandle(), Qt::Key_Escape); }

  QTemporaryDir Home;
  std::vector<std::string> Spoken;
};

TEST_F(FileDialogTest, IsMadeAsItIsAskedFor) {
  FileDialogSpec spec = Spec();
  spec.InitialFolder += "/not/there";
  Show(spec, [&](QFileDialog& dialog) {
    EXPECT_EQ(dialog.windowTitle(), "Pick one");
    EXPECT_EQ(dialog.directory().path(), Home.path());
    EXPECT_EQ(dialog.nameFilters(), QStringList({"Text Files (*.txt)", "Tables (*.csv *.tsv)"}));
    EXPECT_EQ(dialog.parentWidget(), &Window);
    EXPECT_EQ(FileDialog.Show(Spec()), "");  // there is one already
    Cancel(dialog);
  });
}

TEST_F(FileDialogTest, TypedNameGetsTheExtension) {
  const std::string chosen = Show(Spec(), [&](QFileDialog& dialog) {
    Type(dialog, "points");
    QTest::keyClick(dialog.windowHandle(), Qt::Key_Return);
  });
  EXPECT_EQ(chosen, Home.filePath("points.txt").toStdString());
  EXPECT_THAT(Shown.Take(), IsEmpty());
}

TEST_F(FileDialogTest, KeysAreTheDialogsUntilItIsLeft) {
  Shown.FocusByUser(*Shown.Find("cmdB"));
  Settle();
  Shown.Take();
  const std::string chosen = Show(Spec(), [&](QFileDialog& dialog) {
    QTest::keyClick(dialog.windowHandle(), Qt::Key_Tab);
    QTest::keyClick(dialog.windowHandle(), Qt::Key_N, Qt::AltModifier);  // "File name"
    EXPECT_TRUE(qobject_cast<QLineEdit*>(dialog.focusWidget()));
    Cancel(dialog);
  });
  EXPECT_EQ(chosen, "");
  Window.activateWindow();
  EXPECT_TRUE(QTest::qWaitForWindowActive(&Window));
  EXPECT_THAT(Shown.Take(), IsEmpty());
  EXPECT_TRUE(Find<QPushButton>("cmdB").hasFocus());
  Press(Qt::Key_Space);
  EXPECT_THAT(Shown.Take(), ElementsAre("click cmdB"));
}

TEST_F(FileDialogTest, SpeaksWhereTheUserIs) {
  Show(Spec(), [&](QFileDialog& dialog) {
    EXPECT_THAT(Spoken, ElementsAre(AllOf(HasSubstr("Pick one"), HasSubstr("File name"))));
    Spoken.clear();
    Type(dialog, "nil");
    QTest::keyClick(dialog.windowHandle(), Qt::Key_Tab);
    QTest::keyClick(dialog.windowHandle(), Qt::Key_Tab, Qt::ShiftModifier);
    EXPECT_THAT(Spoken, ElementsAre("n", "i", "l", "Text Files (*.txt) is 1944", "File name is 1942, nil"));
    Spoken.clear();
    QTest::keyClick(dialog.windowHandle(), Qt::Key_End);
    QTest::keyClick(dialog.windowHandle(), Qt::Key_Backspace);
    QTest::keyClick(dialog.windowHandle(), Qt::Key_F7);
    QTest::keyClick(dialog.windowHandle(), Qt::Key_F1);
    EXPECT_THAT(Spoken, ElementsAre("l", "File name is 1942, ni", "%% is 1947"));
    auto* files = dialog.findChild<QListView*>("listView");
    files->setFocus();
    EXPECT_THAT(Spoken.back(), HasSubstr("Files"));
    EXPECT_TRUE(QTest::qWaitFor([&] { return files->model()->rowCount(files->rootIndex()) == 2; }));
    QTest::keyClick(dialog.windowHandle(), Qt::Key_End);
    EXPECT_EQ(Spoken.back(), files->currentIndex().data().toString().toStdString() + " is 1945");
    EXPECT_THAT(Spoken.back(), HasSubstr(".txt"));
    Cancel(dialog);
  });
}

TEST_F(FileDialogTest, EndsFromOutsideWithItsMessage) {
  // The message that there is no such file runs a loop of its own in the key press.
  QTimer watch;
  QObject::connect(&watch, &QTimer::timeout, [&] {
    if (!qobject_cast<QMessageBox*>(QApplication::activeWindow())) return;
    watch.stop();
    EXPECT_THAT(Spoken.back(), HasSubstr("not found"));
    FileDialog.CloseFront();
    QTimer::singleShot(0, [&] { FileDialog.CloseFront(); });
  });
  const std::string chosen = Show(Spec(), [&](QFileDialog& dialog) {
    Type(dialog, "nothing.txt");
    watch.start(1);
    QTest::keyClick(dialog.windowHandle(), Qt::Key_Return);
  });
  EXPECT_EQ(chosen, "");
  EXPECT_FALSE(FileDialog.IsOpen());
}

}  // namespace
}  // namespace qves
