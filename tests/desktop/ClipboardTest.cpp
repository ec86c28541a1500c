#include <gtest/gtest.h>

#include <QClipboard>
#include <QGuiApplication>
#include <QImage>
#include <QMimeData>

#include "desktop/DesktopClipboard.h"

namespace qves {
namespace {

TEST(DesktopClipboard, GivesTextAndTakesIt) {
  DesktopClipboard clipboard;
  QClipboard& desktop = *QGuiApplication::clipboard();
  clipboard.WriteText("-2.5 \u20AC");
  EXPECT_EQ(desktop.text(), QString::fromUtf8("-2.5 \u20AC"));
  desktop.setText(QString::fromUtf8("1\u00A0234,50\n"));
  EXPECT_EQ(clipboard.ReadText(100), "1\u00A0234,50\n");
  EXPECT_EQ(clipboard.ReadText(2), "1\xC2");
  desktop.setImage(QImage(2, 2, QImage::Format_RGB32));
  EXPECT_EQ(clipboard.ReadText(100), "");
  desktop.clear();
  EXPECT_EQ(clipboard.ReadText(100), "");
}

}  // namespace
}  // namespace qves
