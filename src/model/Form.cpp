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

void Form::Click(Control& control) {
  if (!control.Enabled) return;
  try {
    OnClick(control);
  } catch (const ArithmeticFault&) {
    OnFault();
  }
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
  const bool onButton = dynamic_cast<Button*>(Focused) != nullptr;
  switch (event.Code) {
    case KeyTab:
      if ((event.Shift & ControlBit) != 0) return false;
      MoveFocus(event.Shift == ShiftBit ? -1 : 1);
      return true;
    case KeyEnter:
      return PressEnter();
    case KeySpace:
      if (onButton) Click(*Focused);
      return onButton;
    default:
      // Arrows on a button would move the focus in some toolkits; here only Tab does.
      return onButton && event.Code >= KeyPageUp && event.Code <= qves::KeyDown;
  }
}

bool Form::PressEnter() {
  Control* target = nullptr;
  if (EnterPressesFocused && dynamic_cast<Button*>(Focused)) {
    target = Focused;
  } else {
    const auto found = std::find_if(ControlList.begin(), ControlList.end(),
                                    [](const auto& control) { return control->Has(DefaultButton); });
    if (found != ControlList.end()) target = found->get();
  }
  if (target) Click(*target);
  return target != nullptr;
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
