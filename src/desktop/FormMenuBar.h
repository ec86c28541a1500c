// The menu bar of a form. What is highlighted is told to the menu-hint control, by keyboard and by mouse
// alike.
#pragma once

#include <QMenuBar>
#include <QPointer>
#include <functional>
#include <vector>

#include "model/Menu.h"
#include "platform/Notifiers.h"

namespace qves {

class FormMenuBar : public QMenuBar {
 public:
  /// `choose` gets the id of a chosen item, after the menus have closed.
  FormMenuBar(const std::vector<Menu>& menus, HintNotify& hints, std::function<void(int id)> choose);
  ~FormMenuBar() override;

  /// Highlights the first menu without opening it, as Alt alone does.
  void HighlightFirst();
  /// Opens the menu with that mnemonic, a letter's key code, at its first item; false when there is none.
  bool OpenMenu(int letter);
  /// Tells now what is to be told of the menus, so that a key that follows finds them as they are.
  void Settle();
  /// True from the first highlighted item until the menus are closed.
  bool IsActive() const { return Active; }

 protected:
  void focusInEvent(QFocusEvent* event) override;
  void focusOutEvent(QFocusEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void mouseMoveEvent(QMouseEvent* event) override;

 private:
  void AddMenu(const Menu& menu);
  void Open(QAction* title);
  void Highlighted(QAction* action);
  void Tell(QAction* action);
  void LookWhetherClosed();
  void TellClosed();

  HintNotify& Hints;
  std::function<void(int id)> Choose;
  QAction* Last = nullptr;
  QPointer<QWidget> FocusBefore;  ///< where the keyboard focus was before HighlightFirst
  bool Active = false;
};

/// A menu caption as it is read: without the "&" before the mnemonic.
QString WithoutMnemonic(const QString& caption);

}  // namespace qves
