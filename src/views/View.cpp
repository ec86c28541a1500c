#include "views/View.h"

#include <algorithm>

#include "model/ArithmeticFault.h"
#include "services/MessageIds.h"
#include "services/WindowActivation.h"
#include "views/LockKeys.h"
#include "views/MakeControl.h"

namespace qves {
namespace {

constexpr std::string_view HostWindow = " Quorvane 1000";
constexpr KeyEvent CopyKey{'C', ControlBit, 0};
constexpr KeyEvent SelectAllKey{'A', ControlBit, 0};

bool Is(const KeyEvent& event, const KeyEvent& key) {
  return event.Code == key.Code && event.Shift == key.Shift;
}

}  // namespace

View::View(const ViewTables& tables, Services& services, ViewFrame& frame)
    : Form(std::string(tables.FormName), services.Messages.GetMessage(TitleMessage)),
      Services_(services),
      Says(services.Speech, services.Messages),
      Frame(frame),
      Tables(tables) {
  AddControls();
  AddMenus();
  PanelList.assign(Tables.Panels.begin(), Tables.Panels.end());
}

void View::AddControls() {
  for (const ControlSpec& spec : Tables.Controls) Add(MakeControl(spec, Services_.Messages));
  Display = static_cast<TextBox*>(Find("txtDisplay"));
  MemoryBox = static_cast<TextBox*>(Find("txtMemory"));
}

void View::AddMenus() {
  for (const MenuSpec& menu : Tables.Menus) {
    Menu shown{menu.Title, Message(menu.Title), {}};
    for (const int item : menu.Items)
      if (item != NoMessage) shown.Items.push_back({item, Message(item)});
    if (menu.Title == ViewMenu)
      for (const int item : Frame.ViewItems()) shown.Items.push_back({item, Message(item)});
    MenuList.push_back(std::move(shown));
  }
}

void View::Form_Load() {
  Services_.Messages.LoadMessageFile("CalcMsg.txt");
  if (!Services_.Settings.DontSpeak) CreateSpeech();
  Frame.LoadHostForm(*this);
  if (Frame.TakeWelcome()) Services_.Speech.SpeakText(Message(WelcomeMessage));
  Engine->ClearAll();
  // Silently: the view's name is being spoken.
  PlaceFocus(*Display);
  Services_.Settings.CalcView = static_cast<std::int16_t>(Frame.Identity().CalcView);
  Services_.Speech.SpeakTextQueued(Message(Frame.Identity().NameMessage));
  Frame.ViewLoaded();
}

void View::CreateSpeech() {
  const AppSettings& s = Services_.Settings;
  if (Services_.Speech.CreateSpeech(s.SystemVoice, s.SystemManuf, s.SystemProduct, s.SystemLanguage))
    Services_.Speech.AttachSpeakingControls(*this, Services_.Verbosity);
}

void View::Form_Unload() {
  Services_.SettingsStore.SaveSettings();
  Frame.LeaveKeys();
  ShutDownSpeech();
  Frame.UnloadHostForm();
  if (!Frame.IsSwitching()) ActivateWindowByTitle(Services_.Outside.Windows, HostWindow);
}

void View::ShutDownSpeech() {
  try {
    Services_.Speech.ShutDownSpeech();
  } catch (const ArithmeticFault& fault) {
    Services_.Log.WriteErrorLog(OverflowErrorCode,
                                std::string(fault.what()) + "; speech is released without a wait");
    Services_.Speech.ReleaseSpeech();
  }
  Services_.Speech.DetachSpeakingControls(*this);
}

void View::NotifyKeyDown(bool& handled, const KeyEvent& event) {
  if (!Frame.IsActive(*this)) return;
  const auto target = [&](const KeyRow& row) { return Find(row.Control, IndexFor(row, event)); };
  const KeyRow* row = FindKeyRow(
      Tables.KeyMap, event, [&](const KeyRow& one) { return !one.WhileEnabled || target(one)->Enabled; });
  if (!row || row->Action == KeyAction::LeaveIt) return;
  handled = true;
  if (row->Action == KeyAction::Click) return PressByKey(*target(*row));
  if (row->Action == KeyAction::RepeatSpeech)  // changes nothing, not even what Enter presses
    return Services_.Speech.RepeatSpeech();
  GoByKey(*target(*row));
}

/// The control is heard at once, also when it has the focus already: who presses the key wants to hear it.
void View::GoByKey(Control& control) {
  EnterPressesDefault();
  if (&control != FocusedControl()) PlaceFocus(control);
  Introduce(control, false);
}

/// After a key has acted through a button the focus goes to its resting place, where the view has one,
/// without a word: nothing is to cut off what the key said.
void View::PressByKey(Control& control) {
  if (!control.Enabled)
    return Services_.Speech.SpeakText(control.SpokenName + ", " + Message(DisabledMessage));
  EnterPressesDefault();
  Click(control);
  if (Control* rest = Find(Tables.RestingControl); rest && rest != FocusedControl()) PlaceFocus(*rest);
}

void View::Form_KeyUp(int keyCode) {
  AnnounceLockKey(Services_, keyCode);
}

void View::OnClick(Control& control) {
  if (dynamic_cast<TextBox*>(&control)) return SayOf(control, false);
  if (const auto* box = dynamic_cast<CheckBox*>(&control))
    return Services_.Speech.SpeakText(box->SpokenName + " " + StateOf(*box));
  const ClickRow* row = FindClickRow(Tables.Clicks, control.Name());
  if (!row) return;
  if (row->Focus == FocusRule::Moves) SetFocus(control);
  if (row->Focus == FocusRule::MovesSilently) PlaceFocus(control);
  Engine->BeginKey();
  row->Operation(*Engine, {control.Caption, control.SpokenName, control.HelpText});
}

void View::OnChoose(ListControl& list) {
  Says.BeginKey();
  const Wording words = ChosenWords(list);
  Says.Say(words.Text, words.Value);
  OnNewChoice(list);
}

void View::OnGotFocus(Control& control) {
  Introduce(control, &control == Display);
}

/// What a control says when the user comes to it.
void View::Introduce(Control& control, bool queued) {
  SayOf(control, queued);
  const bool saysHelp =
      dynamic_cast<CheckBox*>(&control) || dynamic_cast<ListBox*>(&control) || control.Has(HelpOnFocus);
  if (saysHelp && !control.Speaking.Quiescent) Services_.Speech.SpeakHelp(control.HelpText);
}

void View::SayOf(const Control& control, bool queued) {
  const auto [text, value] = Announcement(control);
  if (control.Speaking.Quiescent) return;
  if (queued)
    Services_.Speech.SpeakTextQueued(text, value);
  else
    Services_.Speech.SpeakText(text, value);
  if (const auto* box = dynamic_cast<const CheckBox*>(&control))
    Services_.Speech.SpeakTextQueued(StateOf(*box));
}

const std::string& View::StateOf(const CheckBox& box) const {
  return Message(box.Checked ? CheckedMessage : ClearMessage);
}

/// The display says its value, a box of several lines all of them, the memory indicator its name and its
/// mark, a list its chosen item, any other control its name.
Wording View::Announcement(const Control& control) {
  if (&control == MemoryBox && !MemoryBox->Text.empty()) return {control.SpokenName + " " + MemoryBox->Text};
  if (const auto* list = dynamic_cast<const ListControl*>(&control)) return ChosenWords(*list);
  if (control.Has(MultiLine))
    return {Services_.Speech.SpeechFormatNumber(static_cast<const TextBox&>(control).Text)};
  if (&control != Display) return {control.SpokenName};
  SelectAll(*Display);  // so that a copy takes all of it
  if (Engine->InError()) return {Message(ErrorMessage)};
  return ValueOfDisplay();
}

Wording View::ValueOfDisplay() const {
  const std::string& sentence = Message(CurrentValueMessage);
  const std::string value = Services_.Speech.SpeechFormatNumber(Engine->DisplayText());
  const std::size_t start = sentence.find(Placeholder);
  if (start == std::string::npos) return {sentence};
  return {FillPlaceholders(sentence, {value}), {start, value.size(), Engine->DisplayKind()}};
}

Wording View::ChosenWords(const ListControl& list) const {
  const auto* fixed = dynamic_cast<const ListBox*>(&list);
  return {fixed ? fixed->Chosen().SpokenText : ""};
}

KeyUse View::OnControlKey(Control& control, const KeyEvent& event) {
  if (event.Code == KeyF1) {
    Services_.Speech.SpeakText(control.HelpText, Prose);
    return KeyUse::Used;
  }
  if (event.Code == KeyF7) {
    SayOf(control, false);
    return KeyUse::Used;
  }
  auto* box = dynamic_cast<TextBox*>(&control);
  return box ? TextBoxKey(*box, event) : KeyUse::Unused;
}

KeyUse View::TextBoxKey(TextBox& box, const KeyEvent& event) {
  if (Is(event, CopyKey)) {
    Services_.Speech.SpeakText(Message(CopyMessage));
    return KeyUse::PassedOn;  // the copy itself is the toolkit's
  }
  if (!box.Has(MultiLine) || !Is(event, SelectAllKey)) return KeyUse::Unused;
  SelectAll(box);
  Services_.Speech.SpeakText(Message(AllSelectedMessage));
  return KeyUse::Used;
}

void View::OnMenu(int id) {
  switch (id) {
    case ExitItem:
      return Frame.Exit();
    case AboutItem:
    case HotKeysItem:
    case InverseItem:
    case AboutStatisticsItem:
    case StatisticsHotKeysItem:
      return Frame.OpenHelp(id);
    default:
      return Frame.ChooseView(id);
  }
}

}  // namespace qves
