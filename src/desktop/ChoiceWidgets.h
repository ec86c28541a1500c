// The widget of a check box. What it shows is the form's state alone.
#pragma once

#include <QCheckBox>

#include "desktop/ControlView.h"

namespace qves {

class CheckBoxView : public QCheckBox, public ControlView {
 public:
  CheckBoxView(CheckBox& box, ControlHost& host, QWidget* parent);
  void Refresh() override;
  QSize sizeHint() const override;
  QSize minimumSizeHint() const override { return sizeHint(); }

 protected:
  /// A click changes nothing by itself: the form does.
  void nextCheckState() override {}
  bool hitButton(const QPoint& at) const override { return rect().contains(at); }
  void keyPressEvent(QKeyEvent* event) override;
  void paintEvent(QPaintEvent* event) override;

 private:
  QRect MarkRect() const;

  CheckBox& Model;
  ControlHost& Host;
};

}  // namespace qves
