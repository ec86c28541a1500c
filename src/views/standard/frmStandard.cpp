#include "views/standard/frmStandard.h"

#include "services/AppSettings.h"
#include "views/MenuIds.h"
#include "views/standard/StandardControls.h"
#include "views/standard/StandardKeyMap.h"

namespace qves {
namespace {

constexpr ViewTables StandardTables = {
    .FormName = "frmStandard",
    .CalcView = StandardView,
    .NameMessage = StandardItem,
    .Controls = standard::Controls,
    .Panels = standard::Panels,
    .KeyMap = standard::KeyMap,
};

}  // namespace

frmStandard::frmStandard(Services& services, ViewFrame& frame)
    : View(StandardTables, services, frame), Tape(static_cast<TextBox*>(Find("txtResult"))) {
  EngineHost& host = *this;
  TapeHost& tape = *this;
  UseEngine(std::make_unique<StandardEngine>(host, tape, Says));
}

}  // namespace qves
