// Shows the forms of the calculator in windows and brings the desktop's events to it.
#pragma once

#include <memory>
#include <vector>

#include "app/CalculatorApp.h"
#include "desktop/DesktopWindows.h"
#include "desktop/FormWindow.h"
#include "desktop/KeyFilter.h"
#include "desktop/QtEventPump.h"
#include "desktop/QtFileDialog.h"

namespace qves {

class DesktopShell : public AppObserver {
 public:
  /// The outside things that the shell raises events through.
  struct Parts {
    const AppSettings& Settings;
    HintNotify& Hints;
    AppWMSpy& WindowMessages;
    DesktopWindows& Windows;
    QtEventPump& Events;
    QtFileDialog& FileDialog;
  };

  explicit DesktopShell(Parts parts) : To(parts) {}
  ~DesktopShell() override;

  /// Gives keys and window events to the calculator from now on; before its start.
  void Attach(CalculatorApp& app);
  /// Brings the program's window to the front. `token` is the desktop's leave to do so, "" for none.
  void Raise(const std::string& token);
  /// The desktop session, or the user by a signal, ends the program.
  void EndSession();
  /// The display is gone: from now on no window is touched.
  void Detach() { Detached = true; }

  // AppObserver
  void FormShown(Form& form) override;
  void FormClosed(Form& form) override;
  void Ended() override;

 private:
  FormWindow* MakeWindow();
  FormWindow* TopWindow() const { return Stack.empty() ? nullptr : Stack.back(); }
  void CloseWindow(FormWindow& window);

  Parts To;
  CalculatorApp* App = nullptr;
  std::vector<FormWindow*> Stack;  ///< the view's window, then those of the dialogs above it
  std::unique_ptr<KeyFilter> Keys;
  bool Detached = false;
};

}  // namespace qves
