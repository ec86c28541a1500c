// The widgets of lists. What they show as chosen is the form's choice alone.
#pragma once

#include <QListView>

#include "desktop/ListItems.h"
#include "services/AppSettings.h"

namespace qves {

/// What all lists share: the items below a caption, which is the list's name.
class ListWidget : public QListView, public ControlView {
 public:
  ListWidget(ListControl& list, ControlHost& host, QWidget* parent);
  void Refresh() override;
  void ItemsChanged(int from, int removed, int added) override;
  void Drop() override { Items->Drop(); }

 protected:
  /// The list's size with so much room for the items.
  QSize SizeOf(int width, int height) const;
  void changeEvent(QEvent* event) override;
  bool event(QEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;
  // Of the mouse only the end of a click acts; the toolkit's presses would drag, sweep and edit.
  void mousePressEvent(QMouseEvent*) override {}
  void mouseMoveEvent(QMouseEvent*) override {}
  void mouseDoubleClickEvent(QMouseEvent*) override {}
  void mouseReleaseEvent(QMouseEvent* event) override;

 private:
  QFont CaptionFont() const;
  void MakeRoomForCaption();
  void PaintCaption();

  ListControl& Model;
  ControlHost& Host;
  const QString Caption;
  ListItems* Items;
  FollowingSelection* Selection;
};

/// A list of few items, which are all in sight.
class ListBoxView : public ListWidget {
 public:
  ListBoxView(ListBox& list, ControlHost& host, QWidget* parent);
  QSize sizeHint() const override;
  QSize minimumSizeHint() const override { return sizeHint(); }
};

/// A list of data, of any length.
class ListViewWidget : public ListWidget {
 public:
  ListViewWidget(ListView& list, ControlHost& host, const AppSettings& settings, QWidget* parent);
  void Restyle() override;
  QSize sizeHint() const override;
  QSize minimumSizeHint() const override;

 private:
  QSize SizeOfText(int columns, int lines) const;

  const AppSettings& Settings;
};

}  // namespace qves
