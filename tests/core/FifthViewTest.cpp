// A view is one folder and one row: this one is a table of controls, an empty key map and the plain engine.
#include <gtest/gtest.h>

#include "FakePlatform.h"
#include "app/CalculatorApp.h"
#include "model/Join.h"
#include "services/ServiceSet.h"
#include "views/SharedControls.h"
#include "views/View.h"

namespace qves {
namespace {

constexpr int PlainView = 4;
constexpr int PlainItem = 308;

constexpr auto PlainControls = Join(shared::Display(0), shared::UpperDigits(1));

constexpr ViewTables PlainTables = {.FormName = "frmPlain", .Controls = PlainControls};

class frmPlain : public View {
 public:
  frmPlain(Services& services, ViewFrame& frame) : View(PlainTables, services, frame) {
    EngineHost& host = *this;
    UseEngine(std::make_unique<EntryEngine>(State, std::span<const OperatorRow>(), host, Says));
  }

 private:
  StateFields EngineState() const override { return Describe(State); }

  EntryState State;
};

TEST(FifthView, NeedsOneRow) {
  std::vector<ViewRow> rows(Views().begin(), Views().end());
  rows.push_back({{PlainView, PlainItem},
                  "plain",
                  "About.rtf",
                  "Keys.rtf",
                  "Inv.rtf",
                  [](Services& services, ViewFrame& frame) -> std::unique_ptr<Form> {
                    return std::make_unique<frmPlain>(services, frame);
                  }});
  FakePlatform outside;
  outside.Files.Content["/program/CalcMsg.txt"] += "308\tPlain View\n";
  ServiceSet set(outside.All);
  AppObserver nobody;
  CalculatorApp app(set.All, nobody, rows);
  ASSERT_TRUE(app.Main());
  ASSERT_TRUE(app.ActiveForm()->ChooseMenu(PlainItem)) << "the View menu of every view has it";
  Form& plain = *app.ActiveForm();
  EXPECT_EQ(plain.Name(), "frmPlain");
  EXPECT_EQ(set.All.Speech.LastSpokenText(), "Plain View");
  EXPECT_EQ(set.All.Settings.CalcView, PlainView);
  for (const int digit : {4, 2}) plain.MouseClick(*plain.Find("cmdDigit", digit));
  EXPECT_EQ(static_cast<TextBox*>(plain.Find("txtDisplay"))->Text, "42");
  EXPECT_TRUE(plain.ChooseMenu(306));
  EXPECT_EQ(app.ActiveForm()->Name(), "frmStandard");
  // Stored, it is shown at the next start.
  set.All.Settings.CalcView = PlainView;
  CalculatorApp again(set.All, nobody, rows);
  set.All.SettingsStore.SaveSettings();
  ASSERT_TRUE(again.Main());
  EXPECT_EQ(again.ActiveForm()->Name(), "frmPlain");
}

}  // namespace
}  // namespace qves
