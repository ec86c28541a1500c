#include "views/business/BusinessEngine.h"

#include "formulas/MoneyText.h"
#include "formulas/Numbers.h"
#include "views/business/BusinessOperators.h"

namespace qves {

using enum qves::LastAction;

std::span<const OperatorRow> BusinessEngine::Shared() {
  return business::Operators;
}

/// A prefix lasts until the next key. Only a register key looks at it; every other key finds things as they
/// were before it.
void BusinessEngine::BeginKey() {
  EntryEngine::BeginKey();
  const bool hasPrefix = LastAction == Rcl || LastAction == Sto || LastAction == Cal;
  Prefix = hasPrefix ? LastAction : None;
  if (hasPrefix) LastAction = PrevAction;
  PrevAction = LastAction;
}

/// The memory group's "CF" clears the registers; the rest is every view's.
void BusinessEngine::Memory(const PressedKey& key) {
  if (key.Caption == "CF") ClearFinancial();
  EntryEngine::Memory(key);
}

void BusinessEngine::ClearFinancial() {
  Registers = {};
  Registers.BeginDate = Registers.EndDate = ToDayNumber(Modes.Today());
  AmortPrincipal = AmortInterest = 0;
  ExchangeToggle = -1;
  BondPrice = AccruedInterest = 0;
}

void BusinessEngine::ShowMoney(double value) {
  EntryText = NumberToText(value);
  ShowInstead(FormatMoney(EntryText));
}

/// The first operand goes through its general text, which drops zeros at its end: a year that ends in 0
/// cannot be read as a date. This is wanted.
void BusinessEngine::AddToDate(double first, double& second) {
  const DateNames& names = Modes.NamesOfDates();
  const DayNumber day = AddDays(ParseDateNumber(NumberToText(first), names), second);
  second = TextToNumber(FormatDateNumber(day));
  EntryText = FormatLongDate(day, names);
  Show(ValueKind::DateText);
}

StateFields BusinessEngine::Fields() const {
  StateFields fields = EntryEngine::Fields();
  fields.insert(fields.end(), {{"PrevAction", std::string(ToWord(PrevAction))},
                               {"SpokenMsgId", double{1} * SpokenMsgId},
                               {"n", Registers.N},
                               {"i", Registers.I},
                               {"PV", Registers.PV},
                               {"PMT", Registers.PMT},
                               {"FV", Registers.FV},
                               {"CF0", Registers.CF0},
                               {"CashFlows", Registers.CashFlows},
                               {"FlowCount", double{1} * Registers.FlowCount()},
                               {"LastGroupCount", double{1} * Registers.LastGroupCount},
                               {"j", Registers.J},
                               {"BeginDate", double{1} * Registers.BeginDate},
                               {"EndDate", double{1} * Registers.EndDate},
                               {"AmortPrincipal", AmortPrincipal},
                               {"AmortInterest", AmortInterest},
                               {"ExchangeToggle", ExchangeToggle},
                               {"BondPrice", BondPrice},
                               {"AccruedInterest", AccruedInterest},
                               {"BondValid", double{1} * BondValid}});
  return fields;
}

}  // namespace qves
