// A small form that writes down what happens to it.
#pragma once

#include <string>
#include <vector>

#include "model/Form.h"

namespace qves {

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
    };
    for (const ControlSpec& spec : specs) Make(spec);
    Find("cmdOff")->Enabled = false;
    PanelList = {{0, 0, 0, 1, 1}, {1, 1, 0, 1, 1}};
    MenuList = {{1, "&File", {{11, "&Open..."}, {12, "E&xit"}}}, {2, "&View", {{21, "Other && more"}}}};
    PlaceFocus(*Find("txtDisplay"));
  }

  TextBox& Box(std::string_view name) { return static_cast<TextBox&>(*Find(name)); }
  void Show(std::string_view name, std::string_view text) { SetText(Box(name), text); }
  void Append(std::string_view text) { AppendText(Box("txtTape"), text); }
  void Select(std::string_view name) { SelectAll(Box(name)); }
  /// What happened since the last call.
  std::vector<std::string> Take() { return std::exchange(Log, {}); }

 private:
  void Make(const ControlSpec& spec) {
    const std::string name(spec.Name);
    std::unique_ptr<Control> control;
    if (spec.Kind == ControlKind::TextBox)
      control = std::make_unique<TextBox>(spec, "", name + " spoken", name + " help");
    else
      control = std::make_unique<Button>(spec, "A&" + name, name + " spoken", name + " help");
    control->Speaking.Quiescent = false;
    Add(std::move(control));
  }

  void OnClick(Control& control) override {
    Log.push_back("click " + std::string(control.Name()));
    if (control.Name() == "txtDisplay") Select("txtDisplay");
  }
  void OnGotFocus(Control& control) override {
    Log.push_back("focus " + std::string(control.Name()));
    if (control.Name() == "txtDisplay") Select("txtDisplay");
  }
  void OnMenu(int id) override { Log.push_back("menu " + std::to_string(id)); }

  std::vector<std::string> Log;
};

}  // namespace qves
