#include "dialogs/ColumnDialog.h"

#include "services/ListWords.h"
#include "services/MessageIds.h"
#include "text/Text.h"

namespace qves {
namespace {

constexpr int DialogTitle = 1842;

// name, index, kind, caption, caption message, name message, help message, {panel, row, column}, traits
constexpr ControlSpec ColumnsSpec = {"lvwColumns", NoIndex,  ControlKind::ListView, "", 0, 1843,
                                     1844,         {0, 0, 0}};
constexpr ControlSpec OkSpec = {"lcbOK", NoIndex, ControlKind::Button, "",           OkMessage,
                                0,       1845,    {1, 0, 0},           DefaultButton};
constexpr ControlSpec CancelSpec = {"lcbCancel", NoIndex, ControlKind::Button, "",          1846,
                                    0,           1847,    {1, 0, 1},           CancelButton};

std::unique_ptr<Button> MakeButton(const ControlSpec& spec, const MessageStore& messages) {
  const std::string& caption = messages.GetMessage(spec.CaptionMessage);
  return std::make_unique<Button>(spec, caption, ReplaceAll(caption, "&", ""),
                                  messages.GetMessage(spec.HelpMessage));
}

}  // namespace

ColumnDialog::ColumnDialog(std::vector<std::string> names, std::function<void(std::size_t)> choose,
                           Services& services, DialogFrame& frame)
    : Form("frmColumns", services.Messages.GetMessage(DialogTitle)),
      Common(services),
      Frame(frame),
      Choose(std::move(choose)) {
  const MessageStore& messages = services.Messages;
  Columns = static_cast<ListView*>(
      &Add(std::make_unique<ListView>(ColumnsSpec, "", messages.GetMessage(ColumnsSpec.NameMessage),
                                      messages.GetMessage(ColumnsSpec.HelpMessage))));
  Columns->Items = &Names;
  AppendItems(*Columns, names);
  Add(MakeButton(OkSpec, messages));
  Add(MakeButton(CancelSpec, messages));
}

void ColumnDialog::Form_Load() {
  if (!Common.Settings.DontSpeak) Common.Speech.AttachSpeakingControls(*this, Common.Verbosity);
  PlaceFocus(*Columns);
  if (Columns->Speaking.Quiescent) return;
  Common.Speech.SpeakText(Title());
  Common.Speech.SpeakTextQueued(ChosenWords());
}

void ColumnDialog::Form_Unload() {
  Common.Speech.StopSpeech();
  Common.Speech.DetachSpeakingControls(*this);
}

void ColumnDialog::OnClick(Control& control) {
  if (&control == Columns) return;
  const bool isChosen = control.Has(DefaultButton);
  Frame.CloseDialog(*this);
  if (isChosen) Choose(static_cast<std::size_t>(Columns->ListIndex));
}

void ColumnDialog::OnChoose(ListControl&) {
  Common.Speech.SpeakText(ChosenWords());
}

void ColumnDialog::OnListEnd(ListControl&, int step) {
  TellListEnd(Common, step);
}

void ColumnDialog::OnGotFocus(Control& control) {
  if (!control.Speaking.Quiescent) Common.Speech.SpeakText(WordsOf(control));
}

KeyUse ColumnDialog::OnControlKey(Control& control, const KeyEvent& event) {
  if (event.Code != KeyF1 && event.Code != KeyF7) return KeyUse::Unused;
  Common.Speech.SpeakText(event.Code == KeyF1 ? control.HelpText : WordsOf(control), Prose);
  return KeyUse::Used;
}

std::string ColumnDialog::ChosenWords() const {
  const int item = Columns->ListIndex;
  return Columns->ItemText(item) + ListPlaceWords(Common, item, Columns->ItemCount());
}

std::string ColumnDialog::WordsOf(const Control& control) const {
  return control.SpokenName + (&control == Columns ? ", " + ChosenWords() : "");
}

}  // namespace qves
