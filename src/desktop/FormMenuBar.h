// The menu bar of a form. What is highlighted is told to the menu-hint control, by keyboard and by mouse
// alike.
#pragma once

#include <QMenuBar>
#include <functional>
#include <vector>

#include "model/Menu.h"
#include "platform/Notifiers.h"

namespace qves {

class FormMenuBar : public QMenuBar {
 public:
  struct Receivers {
    std::function<void(int id)> Choose;  ///< the id of a chosen item, after the menus have closed
    /// The menus are closed and the bar must not keep the keyboard focus.
    std::function<void()> GiveFocusBack;
  };

  FormMenuBar(const std::vector<Menu>& menus, HintNotify& hints, Receivers receivers);
  ~FormMenuBar() override;

  /// Highlights the first menu without opening it, as Alt alone does; when one is highlighted, leaves the
  /// menus.
  void HighlightFirst();
  /// Ends the highlight of a menu that is not open.
  void Leave();
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
  void mousePressEvent(QMouseEvent* event) override;

 private:
  void AddMenu(const Menu& menu);
  void Open(QAction* title);
  void Highlighted(QAction* action);
  void Tell(QAction* action);
  void LookWhetherClosed();
  void TellClosed();

  HintNotify& Hints;
  Receivers To;
  QAction* Last = nullptr;
  bool Active = false;
  bool Chosen = false;  ///< an item has been, and the menus are closing
};

/// A menu caption as it is read: without the "&" before the mnemonic.
QString WithoutMnemonic(const QString& caption);

}  // namespace qves
