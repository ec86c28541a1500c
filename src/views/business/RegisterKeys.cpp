// The register keys with their prefixes, and the exchange key.
#include "formulas/MoneyText.h"
#include "formulas/Numbers.h"
#include "services/MessageIds.h"
#include "text/Text.h"
#include "views/business/BusinessButtons.h"
#include "views/business/BusinessEngine.h"

namespace qves {

namespace Key = business::Buttons;

using enum ActionKind;

/// A register is a number (stored divided by `Scale`), a date, or has handlers of its own.
struct BusinessEngine::RegisterRow {
  const ControlSpec& Button;
  double FinancialRegisters::*Number = nullptr;
  double Scale = 1;
  DayNumber FinancialRegisters::*Day = nullptr;
  void (BusinessEngine::*OnStore)() = nullptr;
  void (BusinessEngine::*OnRecall)() = nullptr;
};

const BusinessEngine::RegisterRow BusinessEngine::RegisterTable[] = {
    {Key::N, &FinancialRegisters::N},
    {Key::I, &FinancialRegisters::I, 100},
    {Key::PV, &FinancialRegisters::PV},
    {Key::PMT, &FinancialRegisters::PMT},
    {Key::FV, &FinancialRegisters::FV},
    {Key::CF0, &FinancialRegisters::CF0},
    {Key::CFj, nullptr, 1, nullptr, &BusinessEngine::StoreFlow, &BusinessEngine::RecallFlow},
    {Key::Nj, nullptr, 1, nullptr, &BusinessEngine::StoreCount, &BusinessEngine::RecallNothing},
    // Recalled, it is the number of flows and not the index: this is wanted.
    {Key::J, &FinancialRegisters::J, 1, nullptr, nullptr, &BusinessEngine::RecallFlowCount},
    {Key::BeginDate, nullptr, 1, &FinancialRegisters::BeginDate},
    {Key::EndDate, nullptr, 1, &FinancialRegisters::EndDate},
};

const BusinessEngine::RegisterRow& BusinessEngine::FindRegister(std::string_view tag) {
  const RegisterRow* row = RegisterTable;
  while (row->Button.Caption != tag) ++row;
  return *row;
}

void BusinessEngine::PrefixKey(const PressedKey& key) {
  struct PrefixRow {
    std::string_view Caption;
    ActionKind Tag;
  };
  constexpr PrefixRow rows[] = {
      {Key::Solve.Caption, Cal}, {Key::Recall.Caption, Rcl}, {Key::Store.Caption, Sto}};
  for (const PrefixRow& row : rows)
    if (row.Caption == key.Caption) Now.LastAction = row.Tag;
  Says.Say(key.SpokenName);
  Says.SayHelp(key.HelpText);
}

void BusinessEngine::RegisterKey(const PressedKey& key) {
  if (Now.ErrorState && Prefix != Rcl) {
    ClearAll();
    return Says.SayMessage(Key::ClearAll.NameMessage);
  }
  const RegisterRow& row = FindRegister(key.Caption);
  Now.SpokenMsgId = row.Button.NameMessage;
  if (Prefix == Cal)
    SolveRegister(row.Button.Caption);
  else if (Prefix == Rcl)
    Recall(row);
  else
    Store(row);
}

void BusinessEngine::FinishKey(ActionKind action) {
  if (Prefix != None) Now.PrevAction = Prefix;
  Now.LastAction = action;
  Now.DecimalEntered = false;
}

void BusinessEngine::Store(const RegisterRow& row) {
  if (row.OnStore)
    (this->*row.OnStore)();
  else if (row.Day)
    Now.Registers.*row.Day = ParseDateNumber(Now.EntryText, Modes.NamesOfDates());
  else
    Now.Registers.*row.Number = Checked(Now.CurrentValue / row.Scale);
  FinishKey(Fin);
  Says.Say(FillPlaceholders(Says.Message(StoredMessage), {RegisterName()}));
}

/// Without a prefix a flow is added; after STO flow j is changed, if there is one.
void BusinessEngine::StoreFlow() {
  if (Prefix != Sto) return AppendFlow(Now.Registers, Now.CurrentValue);
  if (const auto slot = FindFlow(Now.Registers)) Now.Registers.CashFlows.Set(*slot, Now.CurrentValue);
}

void BusinessEngine::StoreCount() {
  RepeatLastFlow(Now.Registers, Now.CurrentValue);
  Now.CurrentValue = Now.Registers.LastGroupCount;
}

void BusinessEngine::RecallFlow() {
  const auto slot = FindFlow(Now.Registers);
  Now.CurrentValue = slot ? Now.Registers.CashFlows[*slot] : 0;
}

void BusinessEngine::RecallFlowCount() {
  Now.CurrentValue = Now.Registers.FlowCount();
}

void BusinessEngine::Recall(const RegisterRow& row) {
  if (SecondOperandDue()) BeginSecondOperand();
  Now.ErrorState = false;
  if (row.Day) {
    Now.EntryText = FormatDateNumber(Now.Registers.*row.Day);
    Now.CurrentValue = TextToNumber(Now.EntryText);
    Show(ValueKind::DateNumber);
  } else {
    if (row.OnRecall)
      (this->*row.OnRecall)();
    else
      Now.CurrentValue = Checked(Now.Registers.*row.Number * row.Scale);
    ShowMoney(Now.CurrentValue);
  }
  FinishKey(Fin);
  // The display's text as it stands, where a solved register is spoken as a number: wanted so.
  const std::string leadIn = RegisterName() + " ";
  Says.Say(leadIn + DisplayText(), {leadIn.size(), DisplayText().size(), DisplayKind()});
}

std::vector<RegisterContent> BusinessEngine::FilledRegisters() const {
  const DayNumber today = ToDayNumber(Modes.Today());
  std::vector<RegisterContent> filled;
  for (const RegisterRow& row : RegisterTable) {
    const int name = row.Button.NameMessage;
    if (const double number = row.Number ? Now.Registers.*row.Number * row.Scale : 0; number != 0)
      filled.push_back({name, NumberToText(number), ValueKind::Number});
    if (const DayNumber day = row.Day ? Now.Registers.*row.Day : today; day != today)
      filled.push_back({name, FormatDateNumber(day), ValueKind::DateNumber});
  }
  return filled;
}

void BusinessEngine::ExchangeKey(const PressedKey&) {
  struct PairRow {
    std::string_view Op;
    double BusinessState::*First;
    int FirstMessage;
    double BusinessState::*Second;
    int SecondMessage;
  };
  constexpr PairRow pairs[] = {
      {Key::Amortization.Caption, &BusinessState::AmortPrincipal, PrincipalPaidMessage,
       &BusinessState::AmortInterest, InterestPaidMessage},
      {Key::BondPrice.Caption, &BusinessState::AccruedInterest, AccruedInterestMessage,
       &BusinessState::BondPrice, Key::BondPrice.NameMessage},
  };
  if (Now.ErrorState) return Says.SayError();
  std::string leadIn;
  for (const PairRow& pair : pairs) {
    if (pair.Op != Now.CurrentOp) continue;
    const bool first = Now.ExchangeToggle != 0;
    Now.CurrentValue = Now.*(first ? pair.First : pair.Second);
    Now.SpokenMsgId = first ? pair.FirstMessage : pair.SecondMessage;
    leadIn = Says.Message(Now.SpokenMsgId) + " ";
  }
  ShowMoney(Now.CurrentValue);
  FinishKey(Ex);
  Now.ExchangeToggle = Now.ExchangeToggle != 0 ? 0 : -1;
  Says.Say(leadIn + DisplayText());
}

}  // namespace qves
