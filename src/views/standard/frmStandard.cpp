#include "views/standard/frmStandard.h"

#include "views/standard/StandardControls.h"
#include "views/standard/StandardKeyMap.h"

namespace qves {
namespace {

static_assert(AllStandIn(standard::Controls, standard::KeyMap));

constexpr ViewTables StandardTables = {
    .FormName = "frmStandard",
    .Controls = standard::Controls,
    .Panels = standard::Panels,
    .KeyMap = standard::KeyMap,
};

}  // namespace

frmStandard::frmStandard(Services& services, ViewFrame& frame)
    : StateView(StandardTables, services, frame), Tape(FindAs<TextBox>("txtResult")) {
  EngineHost& host = *this;
  TapeHost& tape = *this;
  UseEngine(std::make_unique<StandardEngine>(Now, host, tape, Says));
}

}  // namespace qves
