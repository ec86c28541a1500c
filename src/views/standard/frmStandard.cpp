#include "views/standard/frmStandard.h"

#include "views/standard/StandardControls.h"
#include "views/standard/StandardKeyMap.h"

namespace qves {
namespace {

constexpr ClickRow Clicks[] = {
    {"cmdMemory", Do<StandardEngine, &StandardEngine::Memory>, FocusRule::Moves},
};

static_assert(AllStandIn(standard::Controls, standard::KeyMap));

constexpr ViewTables StandardTables = {
    .FormName = "frmStandard",
    .Controls = standard::Controls,
    .Panels = standard::Panels,
    .KeyMap = standard::KeyMap,
    .Clicks = Clicks,
};

}  // namespace

frmStandard::frmStandard(Services& services, ViewFrame& frame)
    : StateView(StandardTables, services, frame), Tape(static_cast<TextBox*>(Find("txtResult"))) {
  EngineHost& host = *this;
  TapeHost& tape = *this;
  UseEngine(std::make_unique<StandardEngine>(Now, host, tape, Says));
}

}  // namespace qves
