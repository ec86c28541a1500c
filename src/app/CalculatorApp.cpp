#include "app/CalculatorApp.h"

#include "dialogs/HelpDialogs.h"
#include "views/MenuIds.h"
#include "views/business/frmBusiness.h"
#include "views/scientific/frmScientific.h"
#include "views/standard/frmStandard.h"

namespace qves {
namespace {

constexpr std::string_view ApplicationTitle = "QVES Calculator Application";

using ViewMaker = std::unique_ptr<Form> (*)(Services&, ViewFrame&);

template <class ViewForm>
std::unique_ptr<Form> Make(Services& services, ViewFrame& frame) {
  return std::make_unique<ViewForm>(services, frame);
}

/// By CalcView; null for a view that is not built yet.
constexpr ViewMaker ViewMakers[] = {Make<frmScientific>, nullptr, Make<frmStandard>, Make<frmBusiness>};

bool IsCalcView(int number) {
  return number >= ScientificView && number <= BusinessView;
}

}  // namespace

CalculatorApp::CalculatorApp(Services& services, AppObserver& observer)
    : Services_(services), Observer(observer) {}

CalculatorApp::~CalculatorApp() = default;

bool CalculatorApp::Main(const StartOptions& options) {
  WindowSystem& windows = Services_.Outside.Windows;
  if (windows.AnotherInstanceRuns()) {
    // Under another title, so that the search for the first copy cannot find this one.
    windows.SetApplicationTitle("...duplicate instance");
    windows.ActivateApplication(ApplicationTitle);
    return false;
  }
  windows.SetApplicationTitle(ApplicationTitle);
  Services_.Messages.LoadMessageFile("CalcMsg.txt");
  Services_.SettingsStore.ReadSettings();
  const int calcView = options.View.value_or(Services_.Settings.CalcView);
  // No fallback for a number that is no view: the program then runs without a window, as wanted.
  if (IsCalcView(calcView)) ShowView(HasView(calcView) ? calcView : int{StandardView});
  return true;
}

bool CalculatorApp::HasView(int calcView) const {
  return IsCalcView(calcView) && ViewMakers[calcView] != nullptr;
}

void CalculatorApp::ShowView(int calcView) {
  View = ViewMakers[calcView](Services_, *this);
  Observer.FormShown(*View);
  View->Form_Load();
}

void CalculatorApp::SwitchView(int calcView) {
  ViewSwitching = true;
  UnloadView();
  ShowView(calcView);
}

void CalculatorApp::Exit() {
  UnloadView();
  Observer.Ended();
}

void CalculatorApp::UnloadView() {
  if (!View) return;
  while (!Dialogs.empty()) CloseDialog(*Dialogs.back());
  // The wait of the shutdown lets events run; they find no view any more.
  Retired.push_back(std::move(View));
  Form& leaving = *Retired.back();
  leaving.Form_Unload();
  Observer.FormClosed(leaving);
}

void CalculatorApp::Leave() {
  if (View) Exit();
}

bool CalculatorApp::KeyDown(const KeyEvent& event) {
  Retired.clear();
  KeyListener* hook = Services_.Outside.Keys.GetListener();
  if (hook && hook->KeyDown(event)) return true;
  Form* form = ActiveForm();
  return form && !(HostForm && HostForm->IsMenuActive()) && form->KeyDown(event);
}

void CalculatorApp::KeyUp(int keyCode) {
  if (KeyListener* hook = Services_.Outside.Keys.GetListener()) hook->KeyUp(keyCode);
  if (Form* form = ActiveForm()) form->Form_KeyUp(keyCode);
}

void CalculatorApp::LoadHostForm(Form& keyTarget) {
  if (!HostForm)
    HostForm = std::make_unique<frmCTLApp>(
        Services_, frmCTLApp::Callbacks{[this] { return ActiveForm(); }, [this] { Leave(); }});
  HostForm->SetKeyTarget(&keyTarget);
}

void CalculatorApp::OpenHelp(int menuItem) {
  const HelpDialog which = menuItem == AboutItem     ? HelpDialog::About
                           : menuItem == HotKeysItem ? HelpDialog::HotKeys
                                                     : HelpDialog::Inverse;
  Dialogs.push_back(MakeHelpDialog(which, Services_.Settings.CalcView, Services_, *this));
  Form& dialog = *Dialogs.back();
  Observer.FormShown(dialog);
  dialog.Form_Load();
}

void CalculatorApp::CloseDialog(Form& dialog) {
  Retired.push_back(std::move(Dialogs.back()));
  Dialogs.pop_back();
  dialog.Form_Unload();
  Observer.FormClosed(dialog);
}

void CalculatorApp::SetReadingTarget(Form* form) {
  if (!HostForm) return;
  HostForm->SetBookMarkTarget(form);
  HostForm->SetSpeechStoppedTarget(form);
}

void CalculatorApp::LeaveKeys() {
  if (HostForm) HostForm->SetKeyTarget(nullptr);
}

}  // namespace qves
