#include <gtest/gtest.h>

#include <algorithm>
#include <array>

#include "model/ArithmeticFault.h"
#include "model/Form.h"
#include "views/standard/StandardControls.h"

namespace qves {
namespace {

constexpr ControlSpec Specs[] = {
    {"cmdFirst", NoIndex, ControlKind::Button, "first"},
    {"cmdFault", 3, ControlKind::Button, "fault"},
    {"cmdCancel", NoIndex, ControlKind::Button, "cancel", 0, 0, 0, {}, CancelButton | DefaultButton},
};

/// A form that notes what happens to it.
struct NotingForm : Form {
  std::string Notes;
  NotingForm() : Form("frmNoting", "Noting") {
    for (const ControlSpec& spec : Specs) {
      Control& control = Add(std::make_unique<Button>(spec, std::string(spec.Caption), "", ""));
      control.Speaking.Quiescent = false;
    }
  }
  void OnClick(Control& control) override {
    Notes += "click " + control.Caption + ". ";
    if (control.Caption == "fault") throw ArithmeticFault(FaultReason::NoSolution, "wanted");
  }
  void OnGotFocus(Control& control) override { Notes += "focus " + control.Caption + ". "; }
  void OnFault(const ArithmeticFault&) override { Notes += "caught. "; }
};

TEST(Form, ClickIsWhereDisabledControlsAndFaultsEnd) {
  NotingForm form;
  Control& fault = *form.Find("cmdFault", 3);
  form.Click(fault);
  form.MouseClick(*form.Find("cmdFirst"));
  form.MouseClick(*form.Find("cmdFirst"));
  fault.Enabled = false;
  form.Click(fault);
  form.MouseClick(fault);
  EXPECT_EQ(form.Notes, "click fault. caught. focus first. click first. click first. ");
}

TEST(Form, EscapeAndTabFindTheirControls) {
  NotingForm form;
  form.FocusCancelControl();
  form.FocusCancelControl();
  form.KeyDown({KeyTab, NoShift, 0});
  form.KeyDown({KeyTab, NoShift, 0});
  form.Find("cmdFault", 3)->Enabled = false;
  form.KeyDown({KeyTab, ShiftBit, 0});
  form.KeyDown({KeyTab, ShiftBit, 0});
  EXPECT_EQ(form.KeyDown({KeyTab, ControlBit, 0}), KeyUse::Unused);
  EXPECT_EQ(form.Notes, "focus cancel. focus first. focus fault. focus first. focus cancel. ");
}

TEST(StandardControls, TabOrderIsTheReadingOrder) {
  const auto place = [](const ControlSpec& spec) {
    for (const PanelSpec& panel : standard::Panels)
      if (panel.Panel == spec.Cell.Panel)
        return std::array{panel.Row, panel.Column, spec.Cell.Row, spec.Cell.Column};
    return std::array{-1, -1, -1, -1};
  };
  EXPECT_TRUE(std::is_sorted(std::begin(standard::Controls), std::end(standard::Controls),
                             [&](const auto& a, const auto& b) { return place(a) < place(b); }));
}

}  // namespace
}  // namespace qves
