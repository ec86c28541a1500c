#include "views/scientific/frmScientific.h"

#include "views/scientific/BaseButtons.h"
#include "views/scientific/ScientificControls.h"
#include "views/scientific/ScientificKeyMap.h"

namespace qves {
namespace {

constexpr ClickRow Clicks[] = {
    {"cmdDigit", Do<ScientificEngine, &ScientificEngine::Digit>, FocusRule::Moves},
    {"cmdDecimal", Do<ScientificEngine, &ScientificEngine::DecimalPoint>, FocusRule::Moves},
    {"cmdBiOp", Do<ScientificEngine, &ScientificEngine::BinaryOperator>, FocusRule::Moves},
    {"cmdMemory", Do<ScientificEngine, &ScientificEngine::Memory>, FocusRule::Moves},
    {"cmdCE", Do<ScientificEngine, &ScientificEngine::ClearEntry>, FocusRule::Moves},
    {"cmdUOp", Do<ScientificEngine, &ScientificEngine::UnaryOperator>, FocusRule::Stays},
    {"cmdEqual", Do<ScientificEngine, &ScientificEngine::Equals>, FocusRule::Stays},
    {"cmdBackspace", Do<ScientificEngine, &ScientificEngine::Backspace>, FocusRule::Stays},
    {"cmdLeftParen", Do<ScientificEngine, &ScientificEngine::LeftParen>, FocusRule::Moves},
    {"cmdRightParen", Do<ScientificEngine, &ScientificEngine::RightParen>, FocusRule::Moves},
};

static_assert(AllStandIn(scientific::Controls, scientific::KeyMap));

constexpr ViewTables ScientificTables = {
    .FormName = "frmScientific",
    .Controls = scientific::Controls,
    .Panels = scientific::Panels,
    .KeyMap = scientific::KeyMap,
    .Clicks = Clicks,
    .RestingControl = "cmdEqual",
};

}  // namespace

frmScientific::frmScientific(Services& services, ViewFrame& frame)
    : StateView(ScientificTables, services, frame),
      Inv(static_cast<CheckBox*>(Find("cbInv"))),
      Hyp(static_cast<CheckBox*>(Find("cbHyp"))),
      NumBases(static_cast<ListBox*>(Find("lltNumBase"))),
      TrigModes(static_cast<ListBox*>(Find("lltTrigMode"))) {
  EngineHost& host = *this;
  ScientificHost& modes = *this;
  auto engine = std::make_unique<ScientificEngine>(Now, host, modes, Says);
  Scientific = engine.get();
  UseEngine(std::move(engine));
  PlaceChoice(*NumBases, NumberBase::Decimal);
  SetBaseButtons(NumberBase::Decimal);
}

void frmScientific::OnNewChoice(ListControl& list) {
  if (&list != NumBases) return;
  SetBaseButtons(list.ListIndex);
  Scientific->ChangeBase(list.ListIndex);
}

void frmScientific::SetBaseButtons(int base) {
  for (int digit = 0; digit < scientific::DigitsOf[NumberBase::Hexadecimal]; ++digit)
    SetEnabled(*Find(Buttons::Digits, digit), digit < scientific::DigitsOf[base]);
  for (const ControlSpec& button : scientific::DecimalButtons)
    SetEnabled(*Find(button.Name, button.Index), base == NumberBase::Decimal);
}

}  // namespace qves
