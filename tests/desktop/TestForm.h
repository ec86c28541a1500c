// A small form that writes down what happens to it.
#pragma once

#include <string>
#include <vector>

#include "model/Form.h"

namespace qves {

/// Counts what is read of it.
class CountingList : public ListView {
 public:
  using ListView::ListView;
  const std::string& ItemText(int item) const override {
    ++Read;
    return ListView::ItemText(item);
  }
  mutable int Read = 0;
};

class TestForm : public Form {
 public:
  explicit TestForm(const std::string& title = "Test") : Form("frmTest", title) {
    static const ControlSpec specs[] = {
        {.Name = "txtDisplay", .Kind = ControlKind::TextBox, .Cell = {0, 0, 0}},
        {.Name = "txtMemory", .Kind = ControlKind::TextBox, .Cell = {0, 0, 1}, .Traits = Indicator},
        {.Name = "txtTape", .Kind = ControlKind::TextBox, .Cell = {0, 1, 0, 1, 2}, .Traits = MultiLine},
        {.Name = "cmdA", .Cell = {1, 0, 0}},
        {.Name = "cmdB", .Cell = {1, 0, 1}},
        {.Name = "cmdOff", .Cell = {1, 1, 0}},
        {.Name = "cmdEqual", .Cell = {7, 0, 0}, .Traits = DefaultButton},  // of a panel without a place
        {.Name = "cbInv", .Kind = ControlKind::CheckBox, .Cell = {1, 1, 1}},
        {.Name = "lltMode", .Kind = ControlKind::ListBox, .Cell = {1, 2, 0, 1, 2}},
        {.Name = "lvwData", .Kind = ControlKind::ListView, .Cell = {1, 3, 0, 1, 2}},
    };
    for (const ControlSpec& spec : specs) Make(spec);
    Find("cmdOff")->Enabled = false;
    PanelList = {{0, 0, 0, 1, 1}, {1, 1, 0, 1, 1}};
    MenuList = {{1, "&File", {{11, "&Open..."}, {12, "E&xit"}}}, {2, "&View", {{21, "Other && more"}}}};
    PlaceFocus(*Find("txtDisplay"));
    NameLines("Open", "Status");
  }

  TextBox& Box(std::string_view name) { return static_cast<TextBox&>(*Find(name)); }
  void Show(std::string_view name, std::string_view text) { SetText(Box(name), text); }
  void Append(std::string_view text) { AppendText(Box("txtTape"), text); }
  void Move(std::size_t caret) { MoveCaret(Box("txtTape"), caret); }
  void ShowLines(std::string_view open, std::string_view status) {
    SetOpenLine(open);
    SetStatusLine(status);
  }
  void Select(std::string_view name) { SelectAll(Box(name)); }
  CheckBox& Inv() { return static_cast<CheckBox&>(*Find("cbInv")); }
  ListBox& Mode() { return static_cast<ListBox&>(*Find("lltMode")); }
  void Check(bool checked) { SetChecked(Inv(), checked); }
  void Place(int item) { PlaceChoice(Mode(), item); }
  CountingList& Data() { return static_cast<CountingList&>(*Find("lvwData")); }
  void AddItems(const std::vector<std::string>& items) { AppendItems(Data(), items); }
  void Remove(int from, int count) { RemoveItems(Data(), from, count); }
  void PlaceData(int item) { PlaceChoice(Data(), item); }
  void Enable(std::string_view name, bool enabled) { SetEnabled(*Find(name), enabled); }
  /// What happened since the last call.
  std::vector<std::string> Take() { return std::exchange(Log, {}); }

 private:
  void Make(const ControlSpec& spec) {
    const std::string name(spec.Name);
    const std::string caption = "A&" + name;
    const std::string spoken = name + " spoken";
    const std::string help = name + " help";
    std::unique_ptr<Control> control;
    if (spec.Kind == ControlKind::TextBox)
      control = std::make_unique<TextBox>(spec, "", spoken, help);
    else if (spec.Kind == ControlKind::CheckBox)
      control = std::make_unique<CheckBox>(spec, caption, spoken, help);
    else if (spec.Kind == ControlKind::ListBox)
      control = std::make_unique<ListBox>(
          spec, "", spoken, help, std::vector<ListItem>{{" Degrees", ""}, {" Radians", ""}, {" Grads", ""}});
    else if (spec.Kind == ControlKind::ListView)
      control = std::make_unique<CountingList>(spec, "", spoken, help);
    else
      control = std::make_unique<Button>(spec, caption, spoken, help);
    if (auto* list = dynamic_cast<ListView*>(control.get())) list->Items = &Points;
    control->Speaking.Quiescent = false;
    Add(std::move(control));
  }

  void OnClick(Control& control) override {
    Log.push_back("click " + std::string(control.Name()));
    if (control.Name() == "txtDisplay") Select("txtDisplay");
  }
  void OnChoose(ListControl& list) override {
    const std::string& text = list.ItemText(list.ListIndex);
    Log.push_back("choose " + std::string(list.Name()) + (text.starts_with(' ') ? "" : " ") + text);
  }
  void OnGotFocus(Control& control) override {
    Log.push_back("focus " + std::string(control.Name()));
    if (control.Name() == "txtDisplay") Select("txtDisplay");
  }
  void OnMenu(int id) override { Log.push_back("menu " + std::to_string(id)); }

  std::vector<std::string> Log;
  SharedList<std::string> Points;
};

}  // namespace qves
