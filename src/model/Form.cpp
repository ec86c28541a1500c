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
  } catch (const ArithmeticFault& fault) {
    OnFault(fault);
  }
}

void Form::Click(Control& control) {
  if (!control.Enabled) return;
  if (auto* box = dynamic_cast<CheckBox*>(&control)) SetChecked(*box, !box->Checked);
  Guarded([&] { OnClick(control); });
  OnActed(control);
}

void Form::Choose(ListControl& list, int item) {
  if (!list.Enabled || item == list.ListIndex || item < 0 || item >= list.ItemCount()) return;
  PlaceChoice(list, item);
  Guarded([&] { OnChoose(list); });
  OnActed(list);
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
      FocusByUser(*control);
      return true;
    }
  return false;
}

void Form::SetText(TextBox& box, std::string_view text) {
  box.SelStart = box.SelLength = 0;
  if (box.Text == text) return;
  box.Text = text;
  box.Caret = text.size();
  Tell([&](FormObserver& observer) { observer.ControlChanged(*this, box); });
}

void Form::AppendText(TextBox& box, std::string_view text) {
  const std::size_t from = box.Text.size();
  box.Text += text;
  box.Caret = box.Text.size();
  box.SelStart = box.SelLength = 0;
  Tell([&](FormObserver& observer) { observer.TextAppended(*this, box, from); });
}

void Form::SelectAll(TextBox& box) {
  box.SelStart = 0;
  box.SelLength = box.Text.size();
  Tell([&](FormObserver& observer) { observer.ControlChanged(*this, box); });
}

void Form::MoveCaret(TextBox& box, std::size_t caret) {
  box.SelStart = box.SelLength = 0;
  box.Caret = caret;
  Tell([&](FormObserver& observer) { observer.CaretMoved(*this, box); });
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
  list.Items->Append(items);
  if (list.ListIndex == NoItem) list.ListIndex = 0;
  Tell([&](FormObserver& observer) {
    observer.ItemsChanged(*this, list, from, 0, static_cast<int>(items.size()));
  });
}

void Form::RemoveItems(ListView& list, int from, int count) {
  if (count == 0) return;
  list.Items->Erase(static_cast<std::size_t>(from), static_cast<std::size_t>(count));
  if (list.ListIndex >= from + count)
    list.ListIndex -= count;
  else if (list.ListIndex >= from)
    list.ListIndex = std::min(from, list.ItemCount() - 1);
  Tell([&](FormObserver& observer) { observer.ItemsChanged(*this, list, from, count, 0); });
}

void Form::ItemsReplaced(ListView& list, int before) {
  Tell([&](FormObserver& observer) { observer.ItemsChanged(*this, list, 0, before, list.ItemCount()); });
}

void Form::NameLines(std::string open, std::string status) {
  OpenName = std::move(open);
  StatusName = std::move(status);
}

void Form::SetLine(std::string& line, std::string_view text) {
  if (line == text) return;
  line = text;
  Tell([this](FormObserver& observer) { observer.LinesChanged(*this); });
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
