// Sees every key before any widget of the program and hands it to the calculator.
#pragma once

#include <QKeyEvent>
#include <QObject>
#include <functional>

#include "model/KeyEvent.h"

namespace qves {

class KeyFilter : public QObject {
 public:
  struct Receivers {
    std::function<bool(const KeyEvent&)> KeyDown;  ///< true: the key is used, no widget is to see it
    std::function<void(int keyCode)> KeyUp;
    /// A key goes down that was up.
    std::function<void(int keyCode)> NotePress = [](int) {};
    std::function<void()> SettleMenus = [] {};
    /// True while the keyboard belongs to a window that is not the calculator's concern (a context menu, the
    /// file dialog).
    std::function<bool()> IsForeign = [] { return false; };
    /// A press of F10 that the calculator did not use.
    std::function<void()> HighlightFirstMenu = [] {};
    /// A key press has been dealt with.
    std::function<void()> KeyDone = [] {};
    /// A press of Alt and a letter; true when a menu opens.
    std::function<bool(int letter)> OpenMenu = [](int) { return false; };
  };

  /// Filters the keys of all windows of the application.
  explicit KeyFilter(Receivers receivers);
  ~KeyFilter() override;

  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  bool Press(const QKeyEvent& event);
  bool OpensMenu(const KeyEvent& key);
  bool IsRepetition(const QKeyEvent& event, int code) const;
  void Release(const QKeyEvent& event);

  Receivers To;
  int ReleasedCode = 0;    ///< of the last release
  quint64 ReleasedAt = 0;  ///< its time, as the display server has it
};

}  // namespace qves
