#include "app/CalculatorApp.h"

#include <algorithm>

#include "dialogs/ColumnDialog.h"
#include "dialogs/HelpDialogs.h"
#include "dialogs/ResultDialog.h"
#include "services/DecimalMark.h"
#include "views/MenuIds.h"

namespace qves {
namespace {

constexpr std::string_view ApplicationTitle = "QVES Calculator Application";

/// The comma as its layout types it, with nothing held.
bool IsPlainComma(const KeyEvent& event) {
  return event.Character == U',' && event.Shift == NoShift;
}

/// Keys that are no mistake of the user's where they do nothing: modifiers, lock keys, what is unknown.
bool IsNoMistake(const KeyEvent& event) {
  if (IsModifier(event.Code)) return true;
  switch (event.Code) {
    case KeyCapsLock:
    case KeyNumLock:
    case KeyScrollLock:
      return true;
    default:
      return event.Code == 0 && event.Character == 0;
  }
}

}  // namespace

CalculatorApp::CalculatorApp(Services& services, AppObserver& observer, std::span<const ViewRow> views)
    : Common(services), Observer(observer), Rows(views) {}

CalculatorApp::~CalculatorApp() = default;

bool CalculatorApp::Main(const StartOptions& options) {
  WindowSystem& windows = Common.Outside.Windows;
  if (windows.AnotherInstanceRuns()) {
    // Under another title, so that the search for the first copy cannot find this one.
    windows.SetApplicationTitle("...duplicate instance");
    windows.ActivateApplication(ApplicationTitle);
    return false;
  }
  windows.SetApplicationTitle(ApplicationTitle);
  Common.Messages.LoadMessageFile("CalcMsg.txt");
  Common.SettingsStore.ReadSettings();
  const int calcView = options.View.value_or(Common.Settings.CalcView);
  // No fallback for a number that is no view: the program then runs without a window, as wanted.
  const auto row = std::ranges::find(Rows, calcView, [](const ViewRow& r) { return r.Identity.CalcView; });
  if (row != Rows.end()) ShowView(*row);
  return true;
}

void CalculatorApp::ShowView(const ViewRow& row) {
  Current = &row;
  View = row.Make(Common, *this);
  Observer.FormShown(*View);
  View->Form_Load();
}

std::vector<int> CalculatorApp::ViewItems() const {
  std::vector<int> items;
  for (const ViewRow& row : Rows) items.push_back(row.Identity.NameMessage);
  return items;
}

void CalculatorApp::ChooseView(int menuItem) {
  const auto row = std::ranges::find(Rows, menuItem, [](const ViewRow& r) { return r.Identity.NameMessage; });
  if (row == Rows.end()) return;
  if (&*row == Current) return Common.Speech.SpeakText(Common.Messages.GetMessage(menuItem));
  ViewSwitching = true;
  UnloadView();
  ShowView(*row);
}

void CalculatorApp::Exit() {
  Common.Past.Save();
  UnloadView();
  Observer.Ended();
}

void CalculatorApp::UnloadView() {
  if (!View) return;
  while (!Dialogs.empty()) DropDialog();
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
  const bool isPoint = IsPlainComma(event) && WritesDecimalComma(Common.Settings, Common.Outside.Language);
  const KeyUse use = PressKey(isPoint ? KeyEvent{KeyPeriod, NoShift, U'.', event.Held} : event);
  if (use == KeyUse::Unused) TellOfNoFunction(event);
  return use == KeyUse::Used;
}

KeyUse CalculatorApp::PressKey(const KeyEvent& event) {
  if (HostForm && HostForm->KeyDown(event)) return KeyUse::Used;
  Form* form = ActiveForm();
  return form && !(HostForm && HostForm->IsMenuActive()) ? form->KeyDown(event) : KeyUse::PassedOn;
}

/// Without a word, so that nothing is cut off. F10 goes to the menus, where there are any.
void CalculatorApp::TellOfNoFunction(const KeyEvent& event) {
  const bool goesToMenus = event.Code == KeyF10 && event.Shift == NoShift && !ActiveForm()->Menus().empty();
  if (goesToMenus || event.Held || IsNoMistake(event)) return;
  if (Common.Settings.NoFunctionSound) Common.Sounds.VerbosityAnnounce(NoFunctionEntry, false);
}

void CalculatorApp::KeyElsewhere(const KeyEvent& event) {
  if (HostForm) HostForm->NoteKey(event);
}

void CalculatorApp::KeyUp(int keyCode) {
  if (HostForm) HostForm->KeyUp(keyCode);
  if (Form* form = ActiveForm()) form->Form_KeyUp(keyCode);
}

void CalculatorApp::LoadHostForm(Form& keyTarget) {
  if (!HostForm)
    HostForm = std::make_unique<frmCTLApp>(
        Common, frmCTLApp::Callbacks{[this] { return ActiveForm(); }, [this] { Leave(); }});
  HostForm->SetKeyTarget(&keyTarget);
}

bool CalculatorApp::OpenHelp(int menuItem) {
  struct HelpRow {
    int MenuItem;
    HelpDialog Dialog;
    std::string_view ViewRow::*Document;
  };
  constexpr HelpRow rows[] = {{AboutItem, HelpDialog::About, &ViewRow::About},
                              {AboutStatisticsItem, HelpDialog::About, &ViewRow::About},
                              {HotKeysItem, HelpDialog::HotKeys, &ViewRow::HotKeys},
                              {StatisticsHotKeysItem, HelpDialog::HotKeys, &ViewRow::HotKeys},
                              {InverseItem, HelpDialog::Inverse, &ViewRow::Inverse}};
  const auto* row = std::ranges::find(rows, menuItem, &HelpRow::MenuItem);
  if (row == std::end(rows)) return false;
  OpenDialog(MakeHelpDialog(row->Dialog, Current->*(row->Document), Common, *this));
  return true;
}

void CalculatorApp::OpenResult() {
  OpenDialog(MakeResultDialog(Common, *this));
}

void CalculatorApp::OpenColumns(std::vector<std::string> names, std::function<void(std::size_t)> choose) {
  DialogFrame& frame = *this;
  OpenDialog(std::make_unique<ColumnDialog>(std::move(names), std::move(choose), Common, frame));
}

void CalculatorApp::OpenDialog(std::unique_ptr<Form> dialog) {
  Dialogs.push_back(std::move(dialog));
  Form& opened = *Dialogs.back();
  Observer.FormShown(opened);
  opened.Form_Load();
}

void CalculatorApp::CloseDialog(Form&) {
  DropDialog();
  ActiveForm()->Returned();
}

/// The one on top.
void CalculatorApp::DropDialog() {
  Retired.push_back(std::move(Dialogs.back()));
  Dialogs.pop_back();
  Form& dialog = *Retired.back();
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
