// What the Statistics view tells of its lists.
#include "formulas/Numbers.h"
#include "services/MessageIds.h"
#include "views/statistics/frmStatistics.h"

namespace qves {
namespace {
constexpr DataList BothLists[] = {DataList::Main, DataList::Second};
}

void frmStatistics::AddModes(Telling& telling) const {
  for (const DataList list : BothLists)
    if (ListOf(list).ItemCount() > 0) AddCount(telling, list);
  AddChecked(telling);  // the lists' box among them: it says which one counts
  const ListView& list = ListOf(TargetList());
  if (list.ListIndex == NoItem) return;
  telling.Add(Message(ChosenPointMessage),
              {std::to_string(list.ListIndex + 1), std::to_string(list.ItemCount()),
               telling.Number(list.ItemText(list.ListIndex))});
}

/// With all digits, however many the user wants to hear of a result.
Telling frmStatistics::ReadBack() const {
  Telling held(Common.Speech, Prose);
  for (const DataList list : BothLists) AddCount(held, list);
  if (Now.DegreesOfFreedom != 0)
    held.Add(Message(DegreesSetMessage), {held.Number(NumberToText(Now.DegreesOfFreedom))});
  if (Now.Alpha != 0) held.Add(Message(AlphaSetMessage), {held.Number(NumberToText(Now.Alpha))});
  if (!Now.Imported.File.empty()) AddImport(held);
  return held;
}

void frmStatistics::AddCount(Telling& telling, DataList list) const {
  const int count = ListOf(list).ItemCount();
  if (count == 0) return telling.Add(Message(WordsOf(list).Empty));
  telling.Add(Message(count == 1 ? OnePointMessage : PointsMessage),
              {ListOf(list).SpokenName, std::to_string(count)});
}

void frmStatistics::AddImport(Telling& telling) const {
  const ImportOutcome& done = Now.Imported;
  if (!done.IsRead) return telling.Add(Message(ImportFailedMessage), {done.File});
  telling.Add(Message(done.Count == 1 ? ImportDoneOneMessage : ImportDoneMessage),
              {done.File, std::to_string(done.Count)});
  const std::string line = std::to_string(done.StoppedAt);
  if (done.IsFull) return telling.Add(Message(ImportFullMessage), {line});
  if (done.StoppedAt == 0) return;
  telling.Add(Message(ImportStoppedMessage),
              {line, done.Word.empty() ? Message(EmptyTextMessage) : done.Word});
}

}  // namespace qves
