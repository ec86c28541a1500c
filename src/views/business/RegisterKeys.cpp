// The register keys with their prefixes, and the exchange key.
#include "formulas/MoneyText.h"
#include "formulas/Numbers.h"
#include "services/Text.h"
#include "views/business/BusinessEngine.h"

namespace qves {

using enum qves::LastAction;

namespace {

constexpr int ClearAllMessage = 1062;
constexpr int StoredMessage = 1562;

}  // namespace

/// A register is a number (stored divided by `Scale`), a date, or has handlers of its own.
struct BusinessEngine::RegisterRow {
  std::string_view Tag;
  int NameMessage;
  double FinancialRegisters::*Number = nullptr;
  double Scale = 1;
  DayNumber FinancialRegisters::*Day = nullptr;
  void (BusinessEngine::*OnStore)() = nullptr;
  void (BusinessEngine::*OnRecall)() = nullptr;
};

const BusinessEngine::RegisterRow BusinessEngine::RegisterTable[] = {
    {"n", 1500, &FinancialRegisters::N},
    {"i", 1502, &FinancialRegisters::I, 100},
    {"PV", 1504, &FinancialRegisters::PV},
    {"PMT", 1506, &FinancialRegisters::PMT},
    {"FV", 1508, &FinancialRegisters::FV},
    {"CF0", 1510, &FinancialRegisters::CF0},
    {"CFj", 1512, nullptr, 1, nullptr, &BusinessEngine::StoreFlow, &BusinessEngine::RecallFlow},
    {"Nj", 1514, nullptr, 1, nullptr, &BusinessEngine::StoreCount, &BusinessEngine::RecallNothing},
    // Recalled, it is the number of flows and not the index: this is wanted.
    {"j", 1516, &FinancialRegisters::J, 1, nullptr, nullptr, &BusinessEngine::RecallFlowCount},
    {"beg", 1518, nullptr, 1, &FinancialRegisters::BeginDate},
    {"end", 1520, nullptr, 1, &FinancialRegisters::EndDate},
};

const BusinessEngine::RegisterRow& BusinessEngine::FindRegister(std::string_view tag) {
  const RegisterRow* row = RegisterTable;
  while (row->Tag != tag) ++row;
  return *row;
}

void BusinessEngine::PrefixKey(const PressedKey& key) {
  struct PrefixRow {
    std::string_view Caption;
    qves::LastAction Tag;
  };
  constexpr PrefixRow rows[] = {{"CAL", Cal}, {"RCL", Rcl}, {"STO", Sto}};
  for (const PrefixRow& row : rows)
    if (row.Caption == key.Caption) LastAction = row.Tag;
  Says.Say(key.SpokenName);
  Says.SayHelp(key.HelpText);
}

void BusinessEngine::RegisterKey(const PressedKey& key) {
  if (ErrorState && Prefix != Rcl) {
    ClearAll();
    return Says.SayMessage(ClearAllMessage);
  }
  const RegisterRow& row = FindRegister(key.Caption);
  SpokenMsgId = row.NameMessage;
  if (Prefix == Cal)
    SolveRegister(row.Tag);
  else if (Prefix == Rcl)
    Recall(row);
  else
    Store(row);
}

void BusinessEngine::FinishKey(qves::LastAction action) {
  if (Prefix != None) PrevAction = Prefix;
  LastAction = action;
  DecimalEntered = false;
}

void BusinessEngine::Store(const RegisterRow& row) {
  if (row.OnStore)
    (this->*row.OnStore)();
  else if (row.Day)
    Registers.*row.Day = ParseDateNumber(EntryText, Modes.NamesOfDates());
  else
    Registers.*row.Number = Checked(CurrentValue / row.Scale);
  FinishKey(Fin);
  Says.Say(FillPlaceholders(Says.Message(StoredMessage), {RegisterName()}));
}

/// Without a prefix a flow is added; after STO flow j is changed, if there is one.
void BusinessEngine::StoreFlow() {
  if (Prefix != Sto) return AppendFlow(Registers, CurrentValue);
  if (double* flow = FindFlow(Registers)) *flow = CurrentValue;
}

void BusinessEngine::StoreCount() {
  RepeatLastFlow(Registers, CurrentValue);
  CurrentValue = Registers.LastGroupCount;
}

void BusinessEngine::RecallFlow() {
  const double* flow = FindFlow(Registers);
  CurrentValue = flow ? *flow : 0;
}

void BusinessEngine::RecallFlowCount() {
  CurrentValue = Registers.FlowCount();
}

void BusinessEngine::Recall(const RegisterRow& row) {
  if (SecondOperandDue()) BeginSecondOperand();
  ErrorState = false;
  if (row.Day) {
    EntryText = FormatDateNumber(Registers.*row.Day);
    CurrentValue = TextToNumber(EntryText);
    Show(ValueKind::DateNumber);
  } else {
    if (row.OnRecall)
      (this->*row.OnRecall)();
    else
      CurrentValue = Checked(Registers.*row.Number * row.Scale);
    ShowMoney(CurrentValue);
  }
  FinishKey(Fin);
  // The display's text as it stands, where a solved register is spoken as a number: wanted so.
  const std::string leadIn = RegisterName() + " ";
  Says.Say(leadIn + DisplayText(), {leadIn.size(), DisplayText().size(), DisplayKind()});
}

void BusinessEngine::ExchangeKey(const PressedKey&) {
  struct PairRow {
    std::string_view Op;
    double BusinessEngine::*First;
    int FirstMessage;
    double BusinessEngine::*Second;
    int SecondMessage;
  };
  constexpr PairRow pairs[] = {
      {"AMT", &BusinessEngine::AmortPrincipal, 1576, &BusinessEngine::AmortInterest, 1577},
      {"Price", &BusinessEngine::AccruedInterest, 1578, &BusinessEngine::BondPrice, 1540},
  };
  if (ErrorState) return Says.SayError();
  std::string leadIn;
  for (const PairRow& pair : pairs) {
    if (pair.Op != CurrentOp) continue;
    const bool first = ExchangeToggle != 0;
    CurrentValue = this->*(first ? pair.First : pair.Second);
    SpokenMsgId = first ? pair.FirstMessage : pair.SecondMessage;
    leadIn = Says.Message(SpokenMsgId) + " ";
  }
  ShowMoney(CurrentValue);
  FinishKey(Ex);
  ExchangeToggle = ExchangeToggle != 0 ? 0 : -1;
  Says.Say(leadIn + DisplayText());
}

}  // namespace qves
