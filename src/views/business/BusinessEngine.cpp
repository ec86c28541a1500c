#include "views/business/BusinessEngine.h"

#include "formulas/MoneyText.h"
#include "formulas/Numbers.h"
#include "text/Text.h"
#include "views/SharedOperators.h"
#include "views/business/BusinessButtons.h"

namespace qves {

using enum ActionKind;

BusinessEngine::BusinessEngine(BusinessState& state, EngineHost& host, BusinessHost& modes,
                               Announcer& announcer)
    : EntryEngine(state, shared::Operators, host, announcer), Modes(modes), Now(state) {}

/// A prefix lasts until the next key. Only a register key looks at it; every other key finds things as they
/// were before it.
void BusinessEngine::BeginKey() {
  EntryEngine::BeginKey();
  const bool hasPrefix = Now.LastAction == Rcl || Now.LastAction == Sto || Now.LastAction == Cal;
  Prefix = hasPrefix ? Now.LastAction : None;
  if (hasPrefix) Now.LastAction = Now.PrevAction;
  Now.PrevAction = Now.LastAction;
}

/// The memory group's last key clears the registers; the rest is every view's.
void BusinessEngine::Memory(const PressedKey& key) {
  if (key.Caption == business::Buttons::ClearFinancial.Caption) ClearFinancial();
  EntryEngine::Memory(key);
}

void BusinessEngine::ClearFinancial() {
  Now.Registers = {};
  Now.Registers.BeginDate = Now.Registers.EndDate = ToDayNumber(Modes.Today());
  Now.AmortPrincipal = Now.AmortInterest = 0;
  Now.ExchangeToggle = -1;
  Now.BondPrice = Now.AccruedInterest = 0;
}

void BusinessEngine::ShowMoney(double value) {
  Now.EntryText = NumberToText(value);
  ShowInstead(FormatMoney(Now.EntryText));
}

std::string BusinessEngine::BeginResult(int nameMessage) const {
  return std::string(Trimmed(Says.Message(nameMessage))) + " = ";
}

void BusinessEngine::FinishResult(int nameMessage, double value) {
  Finish({BeginResult(nameMessage) + FormatMoney(NumberToText(value)), value});
}

/// The first operand goes through its general text, which drops zeros at its end: a year that ends in 0
/// cannot be read as a date. This is wanted.
void BusinessEngine::AddToDate(double first, double& second) {
  const DateNames& names = Modes.NamesOfDates();
  const DayNumber day = AddDays(ParseDateNumber(NumberToText(first), names), second);
  second = TextToNumber(FormatDateNumber(day));
  Now.EntryText = FormatLongDate(day, names);
  Show(ValueKind::DateText);
}

}  // namespace qves
