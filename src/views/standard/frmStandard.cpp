#include "views/standard/frmStandard.h"

#include "services/AppSettings.h"
#include "views/MenuIds.h"
#include "views/standard/StandardControls.h"
#include "views/standard/StandardKeyMap.h"
#include "views/standard/StandardOperators.h"

namespace qves {
namespace {

constexpr ViewTables StandardTables = {"frmStandard",      StandardView,     StandardItem,
                                       standard::Controls, standard::Panels, standard::KeyMap,
                                       standard::Operators};

}  // namespace

frmStandard::frmStandard(Services& services, ViewFrame& frame) : View(StandardTables, services, frame) {}

}  // namespace qves
