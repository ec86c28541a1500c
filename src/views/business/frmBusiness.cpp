#include "views/business/frmBusiness.h"

#include "services/MessageIds.h"
#include "text/Integers.h"
#include "views/business/BusinessControls.h"
#include "views/business/BusinessKeyMap.h"

namespace qves {
namespace {

const KeyOperation Prefix = Own(&BusinessEngine::PrefixKey);

const ClickRow Clicks[] = {
    {"cmdFinancial", Own(&BusinessEngine::RegisterKey), FocusRule::Stays},
    {"cmdXchange", Own(&BusinessEngine::ExchangeKey), FocusRule::Stays},
    {"cmdCal", Prefix, FocusRule::MovesSilently},
    {"cmdRecall", Prefix, FocusRule::MovesSilently},
    {"cmdSTO", Prefix, FocusRule::MovesSilently},
};

static_assert(AllStandIn(business::Controls, business::KeyMap));

constexpr ViewTables BusinessTables = {
    .FormName = "frmBusiness",
    .Controls = business::Controls,
    .Panels = business::Panels,
    .KeyMap = business::KeyMap,
    .Clicks = Clicks,
};

}  // namespace

frmBusiness::frmBusiness(Services& services, ViewFrame& frame)
    : StateView(BusinessTables, services, frame),
      INTBase(FindAs<ListBox>("lltINTBase")),
      PMTMode(FindAs<ListBox>("lltPMTMode")),
      OddPeriodMode(FindAs<ListBox>("lltOddPeriod")) {
  int id = FirstWeekdayMessage;
  for (std::string& name : Names.Weekdays) name = services.Messages.GetMessage(id++);
  id = FirstMonthMessage;
  for (std::string& name : Names.Months) name = services.Messages.GetMessage(id++);
  EngineHost& host = *this;
  BusinessHost& modes = *this;
  auto engine = std::make_unique<BusinessEngine>(Now, host, modes, Says);
  Business = engine.get();
  engine->ClearFinancial();
  UseEngine(std::move(engine));
}

int frmBusiness::InterestBasis() const {
  return ParseInteger(INTBase->Chosen().Text).value_or(0);
}

}  // namespace qves
