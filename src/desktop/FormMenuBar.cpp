#include "desktop/FormMenuBar.h"

#include <QApplication>
#include <QKeyEvent>
#include <QKeySequence>
#include <QMenu>
#include <QMouseEvent>
#include <QTimer>
#include <utility>

namespace qves {
namespace {

bool IsMenuOpen() {
  return qobject_cast<QMenu*>(QApplication::activePopupWidget()) != nullptr;
}

/// The mnemonic character in upper case, "" for none.
QString MnemonicOf(const QString& caption) {
  return QKeySequence::mnemonic(caption).toString().right(1);
}

}  // namespace

QString WithoutMnemonic(const QString& caption) {
  QString text;
  for (qsizetype i = 0; i < caption.size(); ++i) {
    if (caption[i] == '&' && ++i == caption.size()) break;
    text += caption[i];
  }
  return text;
}

FormMenuBar::FormMenuBar(const std::vector<Menu>& menus, HintNotify& hints, Receivers receivers)
    : Hints(hints), To(std::move(receivers)) {
  setNativeMenuBar(false);
  for (const Menu& menu : menus) AddMenu(menu);
  connect(this, &QMenuBar::hovered, this, &FormMenuBar::Highlighted);
}

FormMenuBar::~FormMenuBar() {
  To.GiveFocusBack = [] {};
  Chosen = true;  // the form is going, and is not come back to
  TellClosed();
}

void FormMenuBar::AddMenu(const Menu& menu) {
  QMenu* popup = addMenu(QString::fromStdString(menu.Caption));
  connect(popup, &QMenu::aboutToHide, this, &FormMenuBar::LookWhetherClosed);
  for (const MenuItem& item : menu.Items) {
    QAction* action = popup->addAction(QString::fromStdString(item.Caption));
    action->setMenuRole(QAction::NoRole);
    connect(action, &QAction::triggered, this, [this] { Chosen = true; });
    connect(
        action, &QAction::triggered, this, [this, id = item.Id] { To.Choose(id); }, Qt::QueuedConnection);
  }
}

void FormMenuBar::Open(QAction* title) {
  setActiveAction(title);
  QMenu* menu = title->menu();
  if (!menu->isEmpty()) menu->setActiveAction(menu->actions().first());
}

void FormMenuBar::HighlightFirst() {
  if (actions().isEmpty()) return;
  if (activeAction()) return Leave();
  // The toolkit highlights without opening for Alt alone, and for a mouse that passes over.
  const QPointF at = actionGeometry(actions().first()).center();
  QMouseEvent passing(QEvent::MouseMove, at, mapToGlobal(at), Qt::NoButton, Qt::NoButton, Qt::NoModifier);
  QMenuBar::mouseMoveEvent(&passing);
  setFocus(Qt::MenuBarFocusReason);
}

void FormMenuBar::Leave() {
  if (IsMenuOpen()) return;
  QKeyEvent escape(QEvent::KeyPress, Qt::Key_Escape, Qt::NoModifier);
  QMenuBar::keyPressEvent(&escape);
  if (hasFocus()) To.GiveFocusBack();
  TellClosed();
}

bool FormMenuBar::OpenMenu(int letter) {
  for (QAction* title : actions()) {
    if (MnemonicOf(title->text()) != QChar(letter)) continue;
    Open(title);
    return true;
  }
  return false;
}

void FormMenuBar::Highlighted(QAction* action) {
  if (!action->menu()) return Tell(action);
  // The toolkit reports a menu's title also while the menu opens with its first item, or closes: only a title
  // that is still the highlighted thing afterwards is told.
  QTimer::singleShot(0, this, [this, action] {
    const bool isInside = action->menu()->isVisible() && action->menu()->activeAction();
    if (activeAction() == action && !isInside) Tell(action);
  });
}

void FormMenuBar::Tell(QAction* action) {
  if (action == Last || action->isSeparator()) return;
  Last = action;
  if (!std::exchange(Active, true)) Chosen = false;
  HintListener* listener = Hints.GetListener();
  if (!listener) return;
  const std::string text = WithoutMnemonic(action->text()).toStdString();
  listener->MenuItemHighlighted(text, MnemonicOf(action->text()).toStdString(), action->menu() != nullptr);
}

void FormMenuBar::focusInEvent(QFocusEvent* event) {
  QMenuBar::focusInEvent(event);
  if (activeAction()) Highlighted(activeAction());
}

void FormMenuBar::focusOutEvent(QFocusEvent* event) {
  QMenuBar::focusOutEvent(event);
  LookWhetherClosed();
}

void FormMenuBar::keyPressEvent(QKeyEvent* event) {
  QMenuBar::keyPressEvent(event);
  LookWhetherClosed();
}

void FormMenuBar::mouseMoveEvent(QMouseEvent* event) {
  // A mouse that only rests over the bar highlights nothing: keys would go to the menus and not to the
  // calculator.
  if (Active || event->buttons() != Qt::NoButton) QMenuBar::mouseMoveEvent(event);
}

void FormMenuBar::mousePressEvent(QMouseEvent* event) {
  if (actionAt(event->position().toPoint()))
    QMenuBar::mousePressEvent(event);
  else
    Leave();
}

void FormMenuBar::LookWhetherClosed() {
  // One menu hides before the next one shows, and the bar stays highlighted after Escape in a menu.
  QTimer::singleShot(0, this, [this] {
    if (!IsMenuOpen() && !activeAction()) TellClosed();
  });
}

void FormMenuBar::Settle() {
  if (IsMenuOpen()) return;
  if (!activeAction())
    TellClosed();
  else if (!Active)
    Tell(activeAction());
}

void FormMenuBar::TellClosed() {
  if (!Active) return;
  Active = false;
  Last = nullptr;
  if (hasFocus()) To.GiveFocusBack();
  if (HintListener* listener = Hints.GetListener()) listener->MenusClosed(std::exchange(Chosen, false));
}

}  // namespace qves
