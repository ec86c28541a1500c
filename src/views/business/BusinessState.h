// A calculation of the Business view.
#pragma once

#include "engine/EntryState.h"
#include "views/business/FinancialRegisters.h"

namespace qves {

struct BusinessState : EntryState {
  FinancialRegisters Registers;
  ActionKind PrevAction = ActionKind::None;
  int SpokenMsgId = 0;  ///< names the register or function announced last
  double AmortPrincipal = 0;
  double AmortInterest = 0;
  double ExchangeToggle = -1;  ///< -1 or 0: which result of a pair the exchange key shows next
  double BondPrice = 0;
  double AccruedInterest = 0;
  int BondValid = 0;  ///< coupons left at the last bond price

  bool operator==(const BusinessState&) const = default;
};

StateFields Describe(const BusinessState& state);

}  // namespace qves
