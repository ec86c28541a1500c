#include "views/scientific/frmScientific.h"

#include "services/MessageIds.h"
#include "views/scientific/BaseButtons.h"
#include "views/scientific/ScientificControls.h"
#include "views/scientific/ScientificKeyMap.h"

namespace qves {
namespace {

const ClickRow Clicks[] = {
    {"cmdLeftParen", Own(&ScientificEngine::LeftParen), FocusRule::Moves},
    {"cmdRightParen", Own(&ScientificEngine::RightParen), FocusRule::Moves},
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
      Inv(FindAs<CheckBox>("cbInv")),
      Hyp(FindAs<CheckBox>("cbHyp")),
      NumBases(FindAs<ListBox>("lltNumBase")),
      TrigModes(FindAs<ListBox>("lltTrigMode")) {
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

void frmScientific::AddModes(Telling& telling) const {
  AddChoices(telling, ChoicesTold::Changed);
  if (Now.Form == EntryForm::Notation) telling.Add(Message(NotationOnMessage));
  AddChecked(telling);
}

void frmScientific::SetBaseButtons(int base) {
  for (int digit = 0; digit < scientific::DigitsOf[NumberBase::Hexadecimal]; ++digit)
    SetEnabled(*Find(Buttons::Digits, digit), digit < scientific::DigitsOf[base]);
  for (const ControlSpec& button : scientific::DecimalButtons)
    SetEnabled(*Find(button.Name, button.Index), base == NumberBase::Decimal);
}

}  // namespace qves
