// The widgets of the controls. A widget shows the state of its control; what the user does with it goes to
// the host.
#pragma once

#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>

#include "desktop/Appearance.h"
#include "model/Control.h"

namespace qves {

/// Told what the user does with a widget.
class ControlHost {
 public:
  virtual ~ControlHost() = default;
  /// Clicked with the mouse, or pressed by a screen reader.
  virtual void ControlPressed(Control&) = 0;
  /// The widget has the keyboard focus now, for whatever reason.
  virtual void ControlFocused(Control&) = 0;
};

class ControlView {
 public:
  virtual ~ControlView() = default;
  virtual QWidget& Widget() = 0;
  /// Shows the control's state anew.
  virtual void Refresh() = 0;
  /// Shows the part of the text from that byte on; what was before is shown already.
  virtual void Append(std::size_t /*from*/) { Refresh(); }
  /// The desktop's font or colours changed.
  virtual void Restyle() {}
};

class ButtonView : public QPushButton, public ControlView {
 public:
  ButtonView(Button& button, ControlHost& host, QWidget* parent);
  QWidget& Widget() override { return *this; }
  void Refresh() override { setEnabled(Model.Enabled); }
  QSize sizeHint() const override;

 protected:
  void focusInEvent(QFocusEvent* event) override;
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
  QWidget& Widget() override { return *this; }
  void Refresh() override;
  void Restyle() override;
  QSize minimumSizeHint() const override;
  QSize sizeHint() const override;

 protected:
  void focusInEvent(QFocusEvent* event) override;
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
  QWidget& Widget() override { return *this; }
  void Refresh() override;
  void Append(std::size_t from) override;
  void Restyle() override;
  QSize minimumSizeHint() const override;
  QSize sizeHint() const override;

 protected:
  bool event(QEvent* event) override;
  void focusInEvent(QFocusEvent* event) override;
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
