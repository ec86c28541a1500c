// The whole calculator: start-up, the current view, view switching and the end.
#pragma once

#include <map>
#include <memory>
#include <optional>
#include <utility>
#include <vector>

#include "app/ViewList.h"
#include "app/frmCTLApp.h"
#include "dialogs/DialogFrame.h"
#include "model/Form.h"
#include "services/Services.h"
#include "views/ViewFrame.h"

namespace qves {

/// Told when forms come and go, so that a shell can show them.
class AppObserver {
 public:
  virtual ~AppObserver() = default;
  /// The form is made and to be shown. It is loaded right after, and then it speaks.
  virtual void FormShown(Form&) {}
  /// The form is about to be destroyed.
  virtual void FormClosed(Form&) {}
  /// The last form is gone: the program is to end.
  virtual void Ended() {}
};

struct StartOptions {
  std::optional<int> View;  ///< the CalcView to open instead of the stored one
};

class CalculatorApp : private ViewFrame, private DialogFrame {
 public:
  CalculatorApp(Services& services, AppObserver& observer, std::span<const ViewRow> views = Views());
  ~CalculatorApp() override;

  /// Start-up: shows the first view. False when another copy runs and this one is to end at once.
  bool Main(const StartOptions& options = {});

  /// The form that has the keyboard; null before the start and after the end.
  Form* ActiveForm() const { return Dialogs.empty() ? View.get() : Dialogs.back().get(); }

  /// A key press: through the keyboard hook, then to the active form. True when the calculator has used it;
  /// else it is the toolkit's own.
  bool KeyDown(const KeyEvent& event);
  /// A key press that belongs to a dialog which is no form.
  void KeyElsewhere(const KeyEvent& event);
  /// The release of a key.
  void KeyUp(int keyCode);
  /// Leaves the calculator as File, Exit does. Nothing when it has ended already.
  void Leave();

 private:
  // ViewFrame
  ViewIdentity Identity() const override { return Current->Identity; }
  std::any& LeftBehind() override { return LeftByView[Current]; }
  std::vector<int> ViewItems() const override;
  void ChooseView(int menuItem) override;
  void Exit() override;
  void LoadHostForm(Form& keyTarget) override;
  void LeaveKeys() override;
  void UnloadHostForm() override { HostForm.reset(); }
  bool IsSwitching() const override { return ViewSwitching; }
  bool IsActive(const Form& view) const override { return &view == ActiveForm(); }
  void StopReading() override { ActiveForm()->StopReading(); }
  bool OpenHelp(int menuItem) override;
  void OpenResult() override;
  void OpenColumns(std::vector<std::string> names, std::function<void(std::size_t)> choose) override;
  void ViewLoaded() override { ViewSwitching = false; }
  bool TakeWelcome() override { return std::exchange(WelcomeDue, false); }

  // DialogFrame
  void CloseDialog(Form& dialog) override;
  void SetReadingTarget(Form* form) override;

  KeyUse PressKey(const KeyEvent& event);
  void TellOfNoFunction(const KeyEvent& event);
  void ShowView(const ViewRow& row);
  void OpenDialog(std::unique_ptr<Form> dialog);
  void DropDialog();
  void UnloadView();

  Services& Common;
  AppObserver& Observer;
  std::span<const ViewRow> Rows;
  const ViewRow* Current = nullptr;  ///< of the view shown last
  std::map<const ViewRow*, std::any> LeftByView;
  std::unique_ptr<frmCTLApp> HostForm;
  std::unique_ptr<Form> View;
  std::vector<std::unique_ptr<Form>> Dialogs;  ///< open above the view, the top one last
  std::vector<std::unique_ptr<Form>> Retired;  ///< unloaded forms, kept until their own handler has returned
  bool ViewSwitching = false;
  bool WelcomeDue = true;
};

}  // namespace qves
