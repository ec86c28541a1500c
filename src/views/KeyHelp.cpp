// The key help: while it is on, every key only tells what it does.
#include "services/MessageIds.h"
#include "views/ChordWords.h"
#include "views/View.h"

namespace qves {
namespace {

struct KeyText {
  int FirstCode;
  int LastCode;
  ShiftRule Shift;
  int Message;
};

/// The keys that no key map takes.
constexpr KeyText KeyTexts[] = {
    {KeyTab, KeyTab, ShiftRule::None, 1867},
    {KeyTab, KeyTab, ShiftRule::Shift, 1868},
    {KeyF1, KeyF1, ShiftRule::Any, 1869},
    {KeyF7, KeyF7, ShiftRule::Any, 1870},
    {KeyEnter, KeyEnter, ShiftRule::Any, 1871},
    {KeySpace, KeySpace, ShiftRule::Any, 1872},
    {KeyPageUp, qves::KeyDown, ShiftRule::Any, 1873},
    {KeyControl, KeyControl, ShiftRule::Any, 1874},
    {KeyF2, KeyF2, ShiftRule::Shift, 1875},
    {KeyF10, KeyF10, ShiftRule::None, 1876},
    {'C', 'C', ShiftRule::Control, 1877},
    {KeyInsert, KeyInsert, ShiftRule::Control, 1877},
    {'A', 'A', ShiftRule::Control, 1878},
    {KeyCapsLock, KeyCapsLock, ShiftRule::Any, 1879},
    {KeyNumLock, KeyScrollLock, ShiftRule::Any, 1879},
};

int TextOf(const KeyEvent& event) {
  for (const KeyText& text : KeyTexts)
    if (event.Code >= text.FirstCode && event.Code <= text.LastCode && Allows(text.Shift, event.Shift))
      return text.Message;
  return NoFunctionHereMessage;
}

}  // namespace

void View::StartKeyHelp() {
  KeyHelpIsOn = true;
  Common.Speech.SpeakText(Message(KeyHelpOnMessage));
}

bool View::DescribeKey(const KeyEvent& event) {
  if (!KeyHelpIsOn || !Frame.IsActive(*this)) return false;
  if (event.Held) return true;
  if (event.Code == KeyEscape && event.Shift == NoShift) {
    KeyHelpIsOn = false;
    Common.Speech.SpeakText(Message(KeyHelpOffMessage));
    return true;
  }
  const std::string chord = ChordInWords(event, Common);
  if (chord.empty()) return false;
  Common.Speech.SpeakText(chord + ": " + DescriptionOf(event), Prose);
  return true;
}

std::string View::DescriptionOf(const KeyEvent& event) const {
  if (const int message = EveryViewKeyText(event); message != NoMessage) return Message(message);
  const KeyRow* row = RowOf(event);
  if (!row || row->Target.Name.empty()) return Message(TextOf(event));
  const Control& control = *TargetOf(*row, event);
  return control.SpokenName + ". " + control.HelpText;
}

}  // namespace qves
