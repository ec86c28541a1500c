// What the keys of every form do.
#include <algorithm>

#include "model/Form.h"

namespace qves {
namespace {

constexpr int ItemsOfAPage = 10;

/// How far a key moves the choice in a list of so many items.
int ListStep(int keyCode, int count) {
  switch (keyCode) {
    case KeyUp:
      return -1;
    case KeyDown:
      return 1;
    case KeyPageUp:
      return -ItemsOfAPage;
    case KeyPageDown:
      return ItemsOfAPage;
    case KeyHome:
      return -count - 1;
    case KeyEnd:
      return count + 1;
    default:
      return 0;
  }
}

/// The keys with which the toolkit copies, selects, moves and scrolls in a text.
bool IsTextKey(const Control& control, const KeyEvent& event) {
  const bool isReader = dynamic_cast<const Reader*>(&control) != nullptr;
  if (!isReader && !dynamic_cast<const TextBox*>(&control)) return false;
  if (event.Code == KeyPageUp || event.Code == KeyPageDown) return isReader || control.Has(MultiLine);
  if (event.Code == KeySpace || (event.Code >= KeyEnd && event.Code <= qves::KeyDown)) return true;
  return event.Shift == ControlBit && (event.Code == 'A' || event.Code == 'C' || event.Code == KeyInsert);
}

}  // namespace

KeyUse Form::KeyDown(const KeyEvent& event) {
  if (BelongsToDesktop(event)) return KeyUse::PassedOn;
  const KeyUse use = Focused ? OnControlKey(*Focused, event) : KeyUse::Unused;
  if (use == KeyUse::Used || ((event.Shift & AltBit) == 0 && FormKey(event))) return KeyUse::Used;
  return Focused && IsTextKey(*Focused, event) ? KeyUse::PassedOn : use;
}

/// The keys that do the same in every form.
bool Form::FormKey(const KeyEvent& event) {
  switch (event.Code) {
    case KeyTab:
      if ((event.Shift & ControlBit) != 0) return false;
      MoveFocus(event.Shift == ShiftBit ? -1 : 1);
      return true;
    case KeyEnter:
      return PressEnter();
    case KeySpace:
      return PressSpace();
    default:
      return event.Code >= KeyPageUp && event.Code <= qves::KeyDown && MoveInList(event);
  }
}

bool Form::PressSpace() {
  const bool pressable = dynamic_cast<Button*>(Focused) || dynamic_cast<CheckBox*>(Focused);
  if (pressable) Click(*Focused);
  return pressable || dynamic_cast<ListControl*>(Focused);
}

/// The keys from Page Up to Down.
bool Form::MoveInList(const KeyEvent& event) {
  auto* list = dynamic_cast<ListControl*>(Focused);
  if (list) MoveChoice(*list, ListStep(event.Code, list->ItemCount()));
  return list != nullptr;
}

void Form::MoveChoice(ListControl& list, int step) {
  if (step == 0) return;
  const int item = std::clamp(list.ListIndex + step, 0, std::max(list.ItemCount() - 1, 0));
  if (item == list.ListIndex || list.ItemCount() == 0) return OnListEnd(list, step);
  Choose(list, item);
}

bool Form::PressEnter() {
  Control* target = EnterPressesFocused && dynamic_cast<Button*>(Focused) ? Focused : DefaultControl();
  if (target) Click(*target);
  return target != nullptr;
}

Control* Form::DefaultControl() const {
  const auto found = std::find_if(ControlList.begin(), ControlList.end(),
                                  [](const auto& control) { return control->Has(DefaultButton); });
  return found == ControlList.end() ? nullptr : found->get();
}

void Form::MoveFocus(int step) {
  const int count = static_cast<int>(ControlList.size());
  if (count == 0) return;
  const auto at = std::find_if(ControlList.begin(), ControlList.end(),
                               [this](const auto& control) { return control.get() == Focused; });
  const int start = at == ControlList.end() ? -1 : static_cast<int>(at - ControlList.begin());
  for (int moved = 1; moved <= count; ++moved) {
    Control& next = *ControlList[static_cast<std::size_t>(((start + step * moved) % count + count) % count)];
    if (next.Enabled) return FocusByUser(next);
  }
}

}  // namespace qves
