#include "model/Form.h"

#include <algorithm>

#include "model/ArithmeticFault.h"

namespace qves {

Form::Form(std::string name, std::string title) : FormName(std::move(name)), FormTitle(std::move(title)) {}

Control* Form::Find(std::string_view name, int index) const {
  for (const auto& control : ControlList)
    if (control->Index() == index && control->Name() == name) return control.get();
  return nullptr;
}

Control& Form::Add(std::unique_ptr<Control> control) {
  ControlList.push_back(std::move(control));
  return *ControlList.back();
}

/// The one place where a fault outside an evaluation ends.
template <class Handler>
void Form::Guarded(Handler handler) {
  try {
    handler();
  } catch (const ArithmeticFault&) {
    OnFault();
  }
}

void Form::Click(Control& control) {
  if (!control.Enabled) return;
  if (auto* box = dynamic_cast<CheckBox*>(&control)) SetChecked(*box, !box->Checked);
  Guarded([&] { OnClick(control); });
}

void Form::Choose(ListBox& list, int item) {
  if (!list.Enabled || item == list.ListIndex || item < 0 || item >= std::ssize(list.Items)) return;
  PlaceChoice(list, item);
  Guarded([&] { OnChoose(list); });
}

void Form::MouseClick(Control& control) {
  if (!control.Enabled) return;
  FocusByUser(control);
  Click(control);
}

void Form::FocusByUser(Control& control) {
  if (!control.Enabled) return;
  EnterPressesFocused = true;
  SetFocus(control);
}

void Form::SetFocus(Control& control) {
  if (Focused == &control || !control.Enabled) return;
  PlaceFocus(control);
  OnGotFocus(control);
}

void Form::PlaceFocus(Control& control) {
  Focused = &control;
  Tell([this](FormObserver& observer) { observer.FocusChanged(*this); });
}

bool Form::KeyDown(const KeyEvent& event) {
  if (Focused && OnControlKey(*Focused, event)) return true;
  if ((event.Shift & AltBit) != 0) return false;
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
  return pressable || dynamic_cast<ListBox*>(Focused);
}

/// The keys from Page Up to Down. On a button or a check box they would move the focus in some toolkits; here
/// only Tab does.
bool Form::MoveInList(const KeyEvent& event) {
  if (dynamic_cast<TextBox*>(Focused) || dynamic_cast<Reader*>(Focused)) return false;
  auto* list = dynamic_cast<ListBox*>(Focused);
  if (!list) return Focused != nullptr;
  switch (event.Code) {
    case qves::KeyUp:
      Choose(*list, list->ListIndex - 1);
      break;
    case qves::KeyDown:
      Choose(*list, list->ListIndex + 1);
      break;
    case KeyHome:
    case KeyPageUp:
      Choose(*list, 0);
      break;
    case KeyEnd:
    case KeyPageDown:
      Choose(*list, static_cast<int>(list->Items.size()) - 1);
      break;
    default:
      break;
  }
  return true;
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

bool Form::ChooseMenu(int id) {
  for (const Menu& menu : MenuList)
    for (const MenuItem& item : menu.Items)
      if (item.Id == id) {
        OnMenu(id);
        return true;
      }
  return false;
}

void Form::FocusCancelControl() {
  for (const auto& control : ControlList)
    if (control->Has(CancelButton)) return SetFocus(*control);
}

void Form::SetText(TextBox& box, std::string_view text) {
  box.SelStart = box.SelLength = 0;
  if (box.Text == text) return;
  box.Text = text;
  Tell([&](FormObserver& observer) { observer.ControlChanged(*this, box); });
}

void Form::AppendText(TextBox& box, std::string_view text) {
  const std::size_t from = box.Text.size();
  box.Text += text;
  box.SelStart = box.SelLength = 0;
  Tell([&](FormObserver& observer) { observer.TextAppended(*this, box, from); });
}

void Form::SelectAll(TextBox& box) {
  box.SelStart = 0;
  box.SelLength = box.Text.size();
  Tell([&](FormObserver& observer) { observer.ControlChanged(*this, box); });
}

void Form::ReaderMoved(Reader& reader) {
  Tell([&](FormObserver& observer) { observer.ControlChanged(*this, reader); });
}

void Form::SetChecked(CheckBox& box, bool checked) {
  if (box.Checked == checked) return;
  box.Checked = checked;
  Tell([&](FormObserver& observer) { observer.ControlChanged(*this, box); });
}

void Form::PlaceChoice(ListBox& list, int item) {
  list.ListIndex = item;
  Tell([&](FormObserver& observer) { observer.ControlChanged(*this, list); });
}

void Form::SetEnabled(Control& control, bool enabled) {
  if (control.Enabled == enabled) return;
  control.Enabled = enabled;
  Tell([&](FormObserver& observer) { observer.ControlChanged(*this, control); });
}

void Form::AddObserver(FormObserver& observer) {
  Observers.push_back(&observer);
}

void Form::RemoveObserver(FormObserver& observer) {
  std::erase(Observers, &observer);
}

template <class Notify>
void Form::Tell(Notify notify) {
  for (FormObserver* observer : Observers) notify(*observer);
}

}  // namespace qves
