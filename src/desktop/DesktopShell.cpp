#include "desktop/DesktopShell.h"

#include <QApplication>
#include <QTimer>
#include <algorithm>

namespace qves {
namespace {

constexpr int RetryMilliseconds = 20;

}  // namespace

DesktopShell::~DesktopShell() {
  if (!Detached && !Stack.empty()) delete Stack.front();
}

void DesktopShell::Attach(CalculatorApp& app) {
  App = &app;
  To.FileDialog.Owner = [this] { return TopWindow(); };
  Keys = std::make_unique<KeyFilter>(KeyFilter::Receivers{
      .KeyDown = [this](const KeyEvent& event) { return App->KeyDown(event); },
      .KeyElsewhere =
          [this](const KeyEvent& event) {
            App->KeyElsewhere(event);
            return To.FileDialog.KeyDown(event);
          },
      .KeyUp = [this](int keyCode) { App->KeyUp(keyCode); },
      .NotePress = [this](int keyCode) { To.Windows.NoteKeyPress(keyCode); },
      .TopWindow = [this] { return TopWindow(); },
  });
}

FormWindow* DesktopShell::MakeWindow() {
  auto* window = new FormWindow(To.Settings, To.Hints, TopWindow());
  window->OnClose = [this, window] { CloseWindow(*window); };
  if (TopWindow()) {
    window->setWindowFlag(Qt::Dialog);
    window->setWindowModality(Qt::WindowModal);
  }
  Stack.push_back(window);
  return window;
}

void DesktopShell::FormShown(Form& form) {
  if (Detached) return;
  FormWindow* window = TopWindow();
  const bool isFree = window && !window->ShownForm();
  (isFree ? window : MakeWindow())->ShowForm(form);
}

void DesktopShell::FormClosed(Form& form) {
  if (Detached) return;
  const auto found = std::ranges::find(Stack, &form, &FormWindow::ShownForm);
  if (found == Stack.end()) return;
  FormWindow* window = *found;
  window->DropForm();
  // The view's window stays for the next view.
  if (found == Stack.begin()) return;
  Stack.erase(found);
  window->hide();
  window->deleteLater();
}

void DesktopShell::Ended() {
  if (Detached) return;
  if (!Stack.empty()) Stack.front()->hide();
  QCoreApplication::exit(0);
}

void DesktopShell::CloseWindow(FormWindow& window) {
  Form* form = window.ShownForm();
  if (!form || window.parentWidget() == nullptr) return App->Leave();
  const auto cancel =
      std::ranges::find_if(form->Controls(), [](const auto& c) { return c->Has(CancelButton); });
  if (cancel != form->Controls().end()) form->MouseClick(**cancel);
}

void DesktopShell::Raise(const std::string& token) {
  QWidget* window = To.FileDialog.IsOpen() ? QApplication::activeModalWidget() : TopWindow();
  if (!window) return;
  if (!token.empty()) qputenv("XDG_ACTIVATION_TOKEN", QByteArray::fromStdString(token));
  window->setWindowState(window->windowState() & ~Qt::WindowMinimized);
  window->show();
  window->raise();
  window->activateWindow();
  To.Windows.RestoreAndActivate(window->winId());
}

void DesktopShell::EndSession() {
  // Not in the middle of a view's unloading, whose wait lets events run, and not inside its file dialog.
  if (To.FileDialog.IsOpen()) To.FileDialog.CloseFront();
  if (To.FileDialog.IsOpen() || To.Events.IsWaiting()) {
    QTimer::singleShot(RetryMilliseconds, [this] { EndSession(); });
    return;
  }
  if (QueryUnloadListener* listener = To.WindowMessages.GetListener()) listener->QueryUnload(SessionEnding);
  QCoreApplication::exit(0);
}

}  // namespace qves
