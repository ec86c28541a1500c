// The window of a form, made from the form's controls, panels and menus alone.
#pragma once

#include <QMainWindow>
#include <unordered_map>

#include "desktop/ControlWidgets.h"
#include "desktop/FormMenuBar.h"
#include "desktop/LineLabel.h"
#include "model/Form.h"
#include "services/AppSettings.h"

class QVBoxLayout;

namespace qves {

class FormWindow : public QMainWindow, private FormObserver, private ControlHost {
 public:
  FormWindow(const AppSettings& settings, HintNotify& hints, QWidget* parent = nullptr);
  ~FormWindow() override;

  /// Shows the form in place of what was shown before, and the window if it is hidden.
  void ShowForm(Form& form);
  /// Forgets the form, which is about to be destroyed. Its controls stay in sight until the next form or the
  /// end.
  void DropForm();
  Form* ShownForm() const { return Shown; }
  /// The menu bar, null when the form has no menus.
  FormMenuBar* Menus() const { return MenuBar; }
  /// The widget of the control, null when it is not of the form shown.
  QWidget* WidgetOf(const Control& control) const;

  /// Whether a dialog that is no form, that of files, has the user: what comes to a form's window all the
  /// same, from an accessibility client, is not passed on.
  static bool IsHeldBack();

  /// Gives the keyboard focus now to the form's focused control, which else gets it after the event in hand.
  void SettleFocus();

  /// Called when the user closes the window.
  std::function<void()> OnClose = [] {};

 protected:
  void closeEvent(QCloseEvent* event) override;
  void changeEvent(QEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;

 private:
  // FormObserver
  void ControlChanged(Form& form, Control& control) override;
  void TextAppended(Form& form, TextBox& box, std::size_t from) override;
  void ItemsChanged(Form&, ListView& list, int from, int removed, int added) override;
  void CaretMoved(Form& form, TextBox& box) override;
  void FocusChanged(Form& form) override;
  void LinesChanged(Form& form) override;
  // ControlHost
  void ControlPressed(Control& control) override;
  void ItemChosen(ListControl& list, int item) override;

  ControlView* ViewOf(const Control& control) const;
  void BuildMenus();
  void BuildContents();
  LineLabel* AddLine(const std::string& name, Qt::TextElideMode elide, QVBoxLayout& column);
  void BuildControls(QWidget& central);
  void ChooseMenu(int id);
  void FocusNow();
  void FocusMoved(const QWidget* to);

  const AppSettings& Settings;
  HintNotify& Hints;
  Form* Shown = nullptr;
  FormMenuBar* MenuBar = nullptr;
  LineLabel* OpenLine = nullptr;    ///< above the controls; null when the form has no lines
  LineLabel* StatusLine = nullptr;  ///< below them
  std::unordered_map<const Control*, ControlView*> Views;
  bool FocusDue = false;     ///< the form's focus has moved, perhaps more than once
  bool MovingFocus = false;  ///< the focus follows the form: its echo is no news for it
};

}  // namespace qves
