// The widgets of what is chosen with: check boxes and lists. What they show is the form's choice alone.
#pragma once

#include <QCheckBox>
#include <QListWidget>

#include "desktop/ControlView.h"

namespace qves {

class CheckBoxView : public QCheckBox, public ControlView {
 public:
  CheckBoxView(CheckBox& box, ControlHost& host, QWidget* parent);
  QWidget& Widget() override { return *this; }
  void Refresh() override;
  QSize sizeHint() const override;
  QSize minimumSizeHint() const override { return sizeHint(); }

 protected:
  /// A click changes nothing by itself: the form does.
  void nextCheckState() override {}
  bool hitButton(const QPoint& at) const override { return rect().contains(at); }
  void focusInEvent(QFocusEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void paintEvent(QPaintEvent* event) override;

 private:
  QRect MarkRect() const;

  CheckBox& Model;
  ControlHost& Host;
};

class FollowingSelection;

/// A list that shows all of its items, of which one is chosen.
class ListBoxView : public QListWidget, public ControlView {
 public:
  ListBoxView(ListBox& list, ControlHost& host, QWidget* parent);
  QWidget& Widget() override { return *this; }
  void Refresh() override;
  QSize sizeHint() const override;
  QSize minimumSizeHint() const override { return sizeHint(); }

 protected:
  bool event(QEvent* event) override;
  void focusInEvent(QFocusEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  // Of the mouse only the end of a click acts; the toolkit's presses would drag, sweep and edit.
  void mousePressEvent(QMouseEvent*) override {}
  void mouseMoveEvent(QMouseEvent*) override {}
  void mouseDoubleClickEvent(QMouseEvent*) override {}
  void mouseReleaseEvent(QMouseEvent* event) override;

 private:
  void AddItems();

  ListBox& Model;
  ControlHost& Host;
  FollowingSelection* Selection;
};

}  // namespace qves
