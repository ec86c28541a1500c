#include "desktop/KeyFilter.h"

#include <QApplication>

#include "desktop/KeyTranslation.h"

namespace qves {
namespace {

bool IsMnemonic(const QKeyEvent& event) {
  return event.modifiers() == Qt::AltModifier && event.key() != Qt::Key_Alt;
}

/// Held, the key is one press. One that speaks or silences when it is let go must not hide by its repetitions
/// that another key came between; Space would turn a check box over and over, F9 the voice; and the Escape
/// that ends the key help is not to clear the calculation.
bool ActsOnceWhileHeld(int code) {
  return code == KeyControl || code == KeyCapsLock || code == KeyNumLock || code == KeyScrollLock ||
         code == KeySpace || code == KeyEscape || code == KeyF9;
}

}  // namespace

KeyFilter::KeyFilter(Receivers receivers) : To(std::move(receivers)) {
  QCoreApplication::instance()->installEventFilter(this);
}

KeyFilter::~KeyFilter() {
  QCoreApplication::instance()->removeEventFilter(this);
}

bool KeyFilter::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() == QEvent::ShortcutOverride && IsMnemonic(*static_cast<QKeyEvent*>(event)) &&
      !IsForeign()) {
    // Comes as a key press then, and opens the menu that has that letter on every layout.
    event->accept();
    return true;
  }
  // The window gets each key once, before its widgets get theirs.
  if (!watched->isWindowType()) return false;
  if (event->type() == QEvent::KeyPress) return Press(*static_cast<QKeyEvent*>(event));
  if (event->type() == QEvent::KeyRelease) Release(*static_cast<QKeyEvent*>(event));
  return false;
}

FormMenuBar* KeyFilter::Menus() const {
  const FormWindow* window = To.TopWindow();
  return window ? window->Menus() : nullptr;
}

/// True while the keyboard belongs to what is not the calculator's concern: a context menu, the file dialog.
bool KeyFilter::IsForeign() const {
  const bool isForeignPopup = QApplication::activePopupWidget() && !(Menus() && Menus()->IsActive());
  return FormWindow::IsHeldBack() || isForeignPopup;
}

bool KeyFilter::Press(const QKeyEvent& event) {
  if (Menus()) Menus()->Settle();
  KeyEvent key = TranslateKey(event);
  key.Held = IsRepetition(event, key.Code);
  if (!key.Held) To.NotePress(key.Code);
  if (IsForeign()) return To.KeyElsewhere(key);
  if (key.Held && ActsOnceWhileHeld(key.Code)) return true;
  const bool used = To.KeyDown(key) || OpensMenu(key);
  if (FormWindow* window = To.TopWindow()) window->SettleFocus();
  return used;
}

bool KeyFilter::OpensMenu(const KeyEvent& key) const {
  if (!Menus()) return false;
  const bool isLetter = key.Code >= 'A' && key.Code <= 'Z';
  if (isLetter && key.Shift == AltBit) return Menus()->OpenMenu(key.Code);
  if (key.Code != KeyF10 || key.Shift != NoShift) return false;
  Menus()->HighlightFirst();
  return true;
}

/// On a busy machine the toolkit takes the halves of a repetition for a release and a press of their own;
/// they have the same time then.
bool KeyFilter::IsRepetition(const QKeyEvent& event, int code) const {
  return event.isAutoRepeat() ||
         (code == ReleasedCode && event.timestamp() != 0 && event.timestamp() == ReleasedAt);
}

void KeyFilter::Release(const QKeyEvent& event) {
  if (event.isAutoRepeat()) return;
  ReleasedCode = TranslateKey(event).Code;
  ReleasedAt = event.timestamp();
  To.KeyUp(ReleasedCode);
}

}  // namespace qves
