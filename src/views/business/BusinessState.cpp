#include "views/business/BusinessState.h"

namespace qves {

StateFields Describe(const BusinessState& state) {
  const FinancialRegisters& r = state.Registers;
  StateFields fields = Describe(static_cast<const EntryState&>(state));
  fields.insert(fields.end(), {{"PrevAction", std::string(ToWord(state.PrevAction))},
                               {"SpokenMsgId", double{1} * state.SpokenMsgId},
                               {"n", r.N},
                               {"i", r.I},
                               {"PV", r.PV},
                               {"PMT", r.PMT},
                               {"FV", r.FV},
                               {"CF0", r.CF0},
                               {"CashFlows", r.CashFlows.Copy()},
                               {"FlowCount", double{1} * r.FlowCount()},
                               {"LastGroupCount", double{1} * r.LastGroupCount},
                               {"j", r.J},
                               {"BeginDate", double{1} * r.BeginDate},
                               {"EndDate", double{1} * r.EndDate},
                               {"AmortPrincipal", state.AmortPrincipal},
                               {"AmortInterest", state.AmortInterest},
                               {"ExchangeToggle", state.ExchangeToggle},
                               {"BondPrice", state.BondPrice},
                               {"AccruedInterest", state.AccruedInterest},
                               {"BondValid", double{1} * state.BondValid}});
  return fields;
}

}  // namespace qves
