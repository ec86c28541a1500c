// The widgets of the buttons and the text boxes, and the choice of a control's widget.
#pragma once

#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>

#include "desktop/Appearance.h"
#include "desktop/ControlView.h"

namespace qves {

class ButtonView : public QPushButton, public ControlView {
 public:
  ButtonView(Button& button, ControlHost& host, QWidget* parent);
  void Refresh() override { setEnabled(Model.Enabled); }
  void Restyle() override { MakeDisabledReadable(*this); }
  QSize minimumSizeHint() const override;
  QSize sizeHint() const override;

 protected:
  void keyPressEvent(QKeyEvent* event) override;
  void paintEvent(QPaintEvent* event) override;

 private:
  Button& Model;
  ControlHost& Host;
};

/// A text box of one line: the display, or an indicator that never has the focus.
class LineView : public QLineEdit, public ControlView {
 public:
  LineView(TextBox& box, ControlHost& host, const AppSettings& settings, QWidget* parent);
  void Refresh() override;
  void Restyle() override;
  QSize minimumSizeHint() const override;
  QSize sizeHint() const override;

 protected:
  void mouseReleaseEvent(QMouseEvent* event) override;
  void paintEvent(QPaintEvent* event) override;

 private:
  TextBox& Model;
  const bool IsIndicator;  // the layout asks for sizes also when the form has gone
  ControlHost& Host;
  const AppSettings& Settings;
};

/// A text box of several lines: the tape.
class LinesView : public QPlainTextEdit, public ControlView {
 public:
  LinesView(TextBox& box, ControlHost& host, const AppSettings& settings, QWidget* parent);
  void Refresh() override;
  void Append(std::size_t from) override;
  void ShowCaret() override;
  void Restyle() override;
  QSize minimumSizeHint() const override;
  QSize sizeHint() const override;

 protected:
  bool event(QEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;

 private:
  void ShowSelection();
  QSize SizeOf(int columns, int lines) const;

  TextBox& Model;
  ControlHost& Host;
  const AppSettings& Settings;
};

/// Makes the widget of the control. It belongs to the parent.
ControlView* MakeControlView(Control& control, ControlHost& host, const AppSettings& settings,
                             QWidget* parent);

}  // namespace qves
