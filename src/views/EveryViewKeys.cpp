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
  bool LeftToDataLists = false;  ///< a list of data that has the focus uses the key itself
};

const View::EveryViewKey View::EveryViewKeys[] = {
    {KeyF1, ShiftBit, 1860, &View::StartKeyHelp},
    {KeyF2, NoShift, 1852, &View::SayWhere, true},
    {KeyF3, NoShift, 1850, &View::Undo},
    {KeyF3, ShiftBit, 1851, &View::Redo},
    {KeyF4, NoShift, 1854, &View::TakeFromHistory},
    {KeyPageUp, NoShift, 1855, &View::HearEarlier, false, true},
    {KeyPageDown, NoShift, 1856, &View::HearLater, false, true},
    {KeyF5, NoShift, 1859, &View::SpellDisplay},
    {KeyF6, NoShift, 1853, &View::SayHeld},
    {KeyF8, NoShift, 1861, &View::SpeedBy<10>},
    {KeyF8, ShiftBit, 1862, &View::SpeedBy<-10>},
    {KeyF8, ControlBit, 1863, &View::VolumeBy<5>},
    {KeyF8, ControlBit | ShiftBit, 1864, &View::VolumeBy<-5>},
    {KeyF9, NoShift, 1865, &View::SwitchVoice, true},
    {KeyF9, ShiftBit, 1866, &View::SwitchDetail},
    {'C', ControlBit | ShiftBit, 1857, &View::Copy},
    {'V', ControlBit | ShiftBit, 1858, &View::Paste},
    {KeyInsert, ShiftBit, 1858, &View::Paste},
};

const View::EveryViewKey* View::FindEveryViewKey(const KeyEvent& event) const {
  for (const EveryViewKey& key : EveryViewKeys) {
    if (key.Code != event.Code || key.Shift != event.Shift) continue;
    if (!key.InDialogs && !Frame.IsActive(*this)) continue;
    if (key.LeftToDataLists && dynamic_cast<const ListView*>(FocusedControl())) continue;
    return &key;
  }
  return nullptr;
}

/// True when it was one of them.
bool View::PressEveryViewKey(const KeyEvent& event) {
  const EveryViewKey* key = FindEveryViewKey(event);
  if (key) (this->*key->Act)();
  return key;
}

int View::EveryViewKeyText(const KeyEvent& event) const {
  const EveryViewKey* key = FindEveryViewKey(event);
  return key ? key->DescriptionMessage : NoMessage;
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
