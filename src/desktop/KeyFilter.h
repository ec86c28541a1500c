// Sees every key before any widget of the program and hands it to the calculator.
#pragma once

#include <QKeyEvent>
#include <QObject>
#include <functional>

#include "desktop/FormWindow.h"
#include "model/KeyEvent.h"

namespace qves {

class KeyFilter : public QObject {
 public:
  struct Receivers {
    std::function<bool(const KeyEvent&)> KeyDown;       ///< true: the key is used, no widget is to see it
    std::function<bool(const KeyEvent&)> KeyElsewhere;  ///< the same of a key in a dialog that is no form
    std::function<void(int keyCode)> KeyUp;
    std::function<void(int keyCode)> NotePress;  ///< a key goes down that was up, also where it is not ours
    std::function<FormWindow*()> TopWindow;      ///< whose menus get keys; null for none
  };

  /// Filters the keys of all windows of the application.
  explicit KeyFilter(Receivers receivers);
  ~KeyFilter() override;

  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  FormMenuBar* Menus() const;
  bool IsForeign() const;
  bool Press(const QKeyEvent& event);
  bool OpensMenu(const KeyEvent& key) const;
  bool IsRepetition(const QKeyEvent& event, int code) const;
  void Release(const QKeyEvent& event);

  Receivers To;
  int ReleasedCode = 0;    ///< of the last release
  quint64 ReleasedAt = 0;  ///< its time, as the display server has it
};

}  // namespace qves
