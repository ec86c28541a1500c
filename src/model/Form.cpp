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

void Form::Click(Control& control) try {
  if (!control.Enabled) return;
  if (auto* box = dynamic_cast<CheckBox*>(&control)) SetChecked(*box, !box->Checked);
  OnClick(control);
} catch (const ArithmeticFault&) {
  OnFault();
}

void Form::Choose(ListControl& list, int item) try {
  if (!list.Enabled || item == list.ListIndex || item < 0 || item >= list.ItemCount()) return;
  PlaceChoice(list, item);
  OnChoose(list);
} catch (const ArithmeticFault&) {
  OnFault();
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

bool Form::ChooseMenu(int id) {
  for (const Menu& menu : MenuList)
    for (const MenuItem& item : menu.Items)
      if (item.Id == id) {
        OnMenu(id);
        return true;
      }
  return false;
}

bool Form::FocusCancelControl() {
  for (const auto& control : ControlList)
    if (control->Has(CancelButton)) {
      SetFocus(*control);
      return true;
    }
  return false;
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

void Form::PlaceChoice(ListControl& list, int item) {
  list.ListIndex = item;
  Tell([&](FormObserver& observer) { observer.ControlChanged(*this, list); });
}

void Form::AppendItems(ListView& list, std::span<const std::string> items) {
  if (items.empty()) return;
  const int from = list.ItemCount();
  list.Items->insert(list.Items->end(), items.begin(), items.end());
  if (list.ListIndex == NoItem) list.ListIndex = 0;
  Tell([&](FormObserver& observer) {
    observer.ItemsChanged(*this, list, from, 0, static_cast<int>(items.size()));
  });
}

void Form::RemoveItems(ListView& list, int from, int count) {
  if (count == 0) return;
  const auto first = list.Items->begin() + from;
  list.Items->erase(first, first + count);
  if (list.ListIndex >= from + count)
    list.ListIndex -= count;
  else if (list.ListIndex >= from)
    list.ListIndex = std::min(from, list.ItemCount() - 1);
  Tell([&](FormObserver& observer) { observer.ItemsChanged(*this, list, from, count, 0); });
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
