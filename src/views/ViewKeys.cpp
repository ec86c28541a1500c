// What the keys of every view do: those of its key map, and those of the focused control.
#include "model/CaretKeys.h"
#include "services/MessageIds.h"
#include "views/View.h"

namespace qves {
namespace {

constexpr KeyEvent CopyKey{'C', ControlBit, 0};
constexpr KeyEvent SelectAllKey{'A', ControlBit, 0};

bool Is(const KeyEvent& event, const KeyEvent& key) {
  return event.Code == key.Code && event.Shift == key.Shift;
}

struct LockRow {
  int Code;
  int OnMessage;
  int OffMessage;
};

constexpr LockRow LockTable[] = {{KeyNumLock, 61, 62}, {KeyCapsLock, 63, 64}, {KeyScrollLock, 65, 66}};

/// NumLock, Caps Lock and Scroll Lock say their new state.
void AnnounceLockKey(Services& services, int keyCode) {
  for (const LockRow& row : LockTable) {
    if (row.Code != keyCode) continue;
    const bool on = services.Outside.Windows.LockKeyIsOn(keyCode);
    services.Speech.SpeakText(services.Messages.GetMessage(on ? row.OnMessage : row.OffMessage));
  }
}

}  // namespace

void View::NotifyKeyDown(bool& handled, const KeyEvent& event) {
  if (PressEveryViewKey(event)) {
    handled = true;
    return;
  }
  if (!Frame.IsActive(*this)) return;
  const KeyRow* row = RowOf(event);
  if (!row || row->Action == KeyAction::LeaveIt) return;
  handled = true;
  if (row->Action == KeyAction::Click) return PressByKey(*TargetOf(*row, event));
  if (row->Action == KeyAction::RepeatSpeech)  // changes nothing, not even what Enter presses
    return Common.Speech.RepeatSpeech();
  GoByKey(*TargetOf(*row, event));
}

const KeyRow* View::RowOf(const KeyEvent& event) const {
  return FindKeyRow(Tables.KeyMap, event,
                    [&](const KeyRow& row) { return !row.WhileEnabled || TargetOf(row, event)->Enabled; });
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
  if (!control.Enabled) return Common.Speech.SpeakText(control.SpokenName + ", " + Message(DisabledMessage));
  EnterPressesDefault();
  Click(control);
  if (Control* rest = Find(Tables.RestingControl); rest && rest != FocusedControl()) PlaceFocus(*rest);
}

void View::Form_KeyUp(int keyCode) {
  if (!KeyHelpIsOn) AnnounceLockKey(Common, keyCode);
}

KeyUse View::OnControlKey(Control& control, const KeyEvent& event) {
  if (event.Code == KeyF1) {
    Common.Speech.SpeakText(control.HelpText, Prose);
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
    if (&box == Display) RememberCopy();
    Common.Speech.SpeakText(Message(CopyMessage));
    return KeyUse::PassedOn;  // the copy itself is the toolkit's
  }
  return box.Has(MultiLine) ? LinesKey(box, event) : KeyUse::Unused;
}

/// In a box of several lines.
KeyUse View::LinesKey(TextBox& box, const KeyEvent& event) {
  SpeechService& speech = Common.Speech;
  if (Is(event, SelectAllKey)) {
    SelectAll(box);
    speech.SpeakText(Message(AllSelectedMessage));
    return KeyUse::Used;
  }
  const auto move = MoveByKey(box.Text, box.Caret, event);
  if (!move || box.Text.empty()) return KeyUse::Unused;
  MoveCaret(box, move->Caret);
  speech.SpeakText(move->IsCharacter ? speech.SpeakableChar(move->Said)
                                     : speech.SpeechFormatNumber(move->Said));
  return KeyUse::Used;
}

}  // namespace qves
