// The keys of every view: what they do stands in no key map.
#include "services/MessageIds.h"
#include "views/View.h"

namespace qves {

struct View::EveryViewKey {
  int Code;
  int Shift;
  int DescriptionMessage;  ///< what it does, for the key help
  void (View::*Act)();
  bool InDialogs = false;
};

const View::EveryViewKey View::EveryViewKeys[] = {
    {KeyF2, NoShift, 1852, &View::SayWhere, true},
    {KeyF3, NoShift, 1850, &View::Undo},
    {KeyF3, ShiftBit, 1851, &View::Redo},
    {KeyF6, NoShift, 1853, &View::SayHeld},
};

/// True when it was one of them.
bool View::PressEveryViewKey(const KeyEvent& event) {
  for (const EveryViewKey& key : EveryViewKeys) {
    if (key.Code != event.Code || key.Shift != event.Shift) continue;
    if (!key.InDialogs && !Frame.IsActive(*this)) continue;
    (this->*key.Act)();
    return true;
  }
  return false;
}

void View::Undo() {
  TellStep(UndoStep(), UndoneMessage, NothingToUndoMessage);
}

void View::Redo() {
  TellStep(RedoStep(), DoneAgainMessage, NothingToRedoMessage);
}

void View::TellStep(const std::string* step, int toldMessage, int noneMessage) {
  if (!step) return Common.Speech.SpeakText(Message(noneMessage));
  Says.Say(FillPlaceholders(Message(toldMessage), {*step}));
  Engine->SayValue();
}

}  // namespace qves
