#include "views/View.h"

#include <algorithm>

#include "model/ArithmeticFault.h"
#include "services/MessageIds.h"
#include "services/WindowActivation.h"
#include "views/MakeControl.h"

namespace qves {
namespace {

constexpr std::string_view HostWindow = " Quorvane 1000";

}  // namespace

View::View(const ViewTables& tables, Services& services, ViewFrame& frame)
    : Form(std::string(tables.FormName), services.Messages.GetMessage(TitleMessage)),
      Common(services),
      Says(services.Speech, services.Messages),
      Frame(frame),
      Tables(tables) {
  AddControls();
  AddMenus();
  NameLines(Message(OpenLineMessage), Message(StatusLineMessage));
  PanelList.assign(Tables.Panels.begin(), Tables.Panels.end());
}

void View::AddControls() {
  for (const ControlSpec& spec : Tables.Controls) {
    Control& control = Add(MakeControl(spec, Common.Messages));
    if (auto* box = dynamic_cast<CheckBox*>(&control)) Boxes.push_back(box);
    if (auto* list = dynamic_cast<ListBox*>(&control)) OptionLists.push_back(list);
    if (auto* list = dynamic_cast<ListView*>(&control)) DataLists.push_back(list);
  }
  Display = FindAs<TextBox>("txtDisplay");
  MemoryBox = FindAs<TextBox>("txtMemory");
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
  Common.Messages.LoadMessageFile("CalcMsg.txt");
  if (!Common.Settings.DontSpeak) CreateSpeech();
  Frame.LoadHostForm(*this);
  if (Frame.TakeWelcome()) Common.Speech.SpeakText(Message(WelcomeMessage));
  Engine->ClearAll();
  AtStart = TakeChoices();
  // Silently: the view's name is being spoken.
  PlaceFocus(*Display);
  Common.Settings.CalcView = static_cast<std::int16_t>(Frame.Identity().CalcView);
  Common.Speech.SpeakTextQueued(Message(Frame.Identity().NameMessage));
  Frame.ViewLoaded();
}

View::Choices View::TakeChoices() const {
  Choices choices;
  std::size_t option = 0;
  for (const CheckBox* box : Boxes) choices.Options.at(option++) = box->Checked;
  for (const ListBox* list : OptionLists) choices.Options.at(option++) = list->ListIndex;
  for (std::size_t i = 0; i < DataLists.size(); ++i) choices.Points.at(i) = DataLists[i]->ListIndex;
  return choices;
}

void View::PutChoices(const Choices& choices) {
  auto option = choices.Options.begin();
  for (CheckBox* box : Boxes) SetChecked(*box, *option++ != 0);
  for (ListBox* list : OptionLists) PlaceChoice(*list, *option++);
  auto point = choices.Points.begin();
  for (ListView* list : DataLists) PlaceChoice(*list, *point++);
}

void View::CreateSpeech() {
  const AppSettings& s = Common.Settings;
  if (Common.Speech.CreateSpeech(s.SystemVoice, s.SystemManuf, s.SystemProduct, s.SystemLanguage))
    Common.Speech.AttachSpeakingControls(*this, Common.Verbosity);
}

void View::Form_Unload() {
  Common.SettingsStore.SaveSettings();
  Frame.LeaveKeys();
  ShutDownSpeech();
  Frame.UnloadHostForm();
  if (!Frame.IsSwitching()) ActivateWindowByTitle(Common.Outside.Windows, HostWindow);
}

void View::ShutDownSpeech() {
  try {
    Common.Speech.ShutDownSpeech();
  } catch (const ArithmeticFault& fault) {
    Common.Log.WriteErrorLog(OverflowErrorCode,
                             std::string(fault.what()) + "; speech is released without a wait");
    Common.Speech.ReleaseSpeech();
  }
  Common.Speech.DetachSpeakingControls(*this);
}

void View::OnClick(Control& control) {
  if (dynamic_cast<TextBox*>(&control)) return SayOf(control, false);
  if (const auto* box = dynamic_cast<CheckBox*>(&control))
    return Common.Speech.SpeakText(box->SpokenName + " " + StateOf(*box));
  const ClickRow* row = FindClickRow(Tables.Clicks, control.Name());
  if (!row) return;
  if (row->Focus == FocusRule::Moves) SetFocus(control);
  if (row->Focus == FocusRule::MovesSilently) PlaceFocus(control);
  Engine->BeginKey();
  (Engine.get()->*row->Operation)({control.Caption, control.SpokenName, control.HelpText});
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

void View::Returned() {
  if (FocusedControl()) SayOf(*FocusedControl(), true);
}

/// What a control says when the user comes to it.
void View::Introduce(Control& control, bool queued) {
  SayOf(control, queued);
  const bool saysHelp =
      dynamic_cast<CheckBox*>(&control) || dynamic_cast<ListBox*>(&control) || control.Has(HelpOnFocus);
  if (saysHelp && !control.Speaking.Quiescent) Common.Speech.SpeakHelp(control.HelpText);
}

void View::SayOf(const Control& control, bool queued) {
  const auto [text, value] = Announcement(control);
  if (control.Speaking.Quiescent) return;
  if (queued)
    Common.Speech.SpeakTextQueued(text, value);
  else
    Common.Speech.SpeakText(text, value);
  if (const auto* box = dynamic_cast<const CheckBox*>(&control)) Common.Speech.SpeakTextQueued(StateOf(*box));
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
    return {Common.Speech.SpeechFormatNumber(static_cast<const TextBox&>(control).Text)};
  if (&control != Display) return {control.SpokenName};
  SelectAll(*Display);  // so that a copy takes all of it
  if (Engine->InError()) return {Message(ErrorMessage)};
  return WithValue(CurrentValueMessage);
}

Wording View::WithValue(int sentenceMessage) const {
  const std::string& sentence = Message(sentenceMessage);
  const std::string value = Common.Speech.SpeechFormatNumber(Engine->DisplayText());
  const std::size_t start = sentence.find(Placeholder);
  if (start == std::string::npos) return {sentence};
  return {FillPlaceholders(sentence, {value}), {start, value.size(), Engine->DisplayKind()}};
}

Wording View::ChosenWords(const ListControl& list) const {
  const auto* fixed = dynamic_cast<const ListBox*>(&list);
  return {fixed ? fixed->Chosen().SpokenText : ""};
}

void View::OnMenu(int id) {
  if (id == ExitItem) return Frame.Exit();
  if (!Frame.OpenHelp(id)) Frame.ChooseView(id);
}

}  // namespace qves
