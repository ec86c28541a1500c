// The test form in a window, with its keys.
#pragma once

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <QCoreApplication>
#include <QTest>

#include "TestForm.h"
#include "desktop/FormWindow.h"
#include "desktop/KeyFilter.h"
#include "desktop/QtFileDialog.h"

namespace qves {

class WindowFixture : public testing::Test {
 protected:
  WindowFixture() {
    Window.ShowForm(Shown);
    Window.activateWindow();
    EXPECT_TRUE(QTest::qWaitForWindowActive(&Window));
    Shown.Take();
  }

  void Press(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier) {
    QTest::keyClick(Window.windowHandle(), key, modifiers);
    Settle();
  }
  /// Lets what is queued happen.
  void Settle() {
    for (int i = 0; i < 3; ++i) QCoreApplication::processEvents();
  }
  template <class Widget>
  Widget& Find(std::string_view name, Form& form) {
    return dynamic_cast<Widget&>(*Window.WidgetOf(*form.Find(name)));
  }
  template <class Widget>
  Widget& Find(std::string_view name) {
    return Find<Widget>(name, Shown);
  }

  AppSettings Settings;
  HintNotify Hints;
  TestForm Shown;
  FormWindow Window{Settings, Hints};
  QtFileDialog FileDialog;
  bool MenuHasKeys = false;
  KeyEvent LastKey;
  KeyFilter Keys{KeyFilter::Receivers{
      .KeyDown =
          [this](const KeyEvent& event) {
            LastKey = event;
            return !MenuHasKeys && Window.ShownForm()->KeyDown(event) == KeyUse::Used;
          },
      .KeyElsewhere = [this](const KeyEvent& event) { return FileDialog.KeyDown(event); },
      .KeyUp = [](int) {},
      .NotePress = [](int) {},
      .TopWindow = [this] { return &Window; },
  }};
};

}  // namespace qves
