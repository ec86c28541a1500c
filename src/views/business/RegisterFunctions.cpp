// The functions that read the registers: each takes what they need to a pure function, and puts back what is
// to stay only when that has not failed.
#include <algorithm>
#include <cmath>

#include "formulas/Amortization.h"
#include "formulas/Bonds.h"
#include "formulas/CashFlows.h"
#include "formulas/Depreciation.h"
#include "formulas/Numbers.h"
#include "services/MessageIds.h"
#include "views/business/BusinessButtons.h"
#include "views/business/BusinessEngine.h"
#include "views/business/BusinessOperators.h"
#include "views/business/BusinessShapes.h"

namespace qves {

namespace Key = business::Buttons;

namespace {

constexpr double Par = 100;

}  // namespace

struct BusinessEngine::FunctionRow {
  const ControlSpec& Button;
  double (BusinessEngine::*Find)(double value);  ///< from the value shown
  int ResultMessage = Button.NameMessage;        ///< what the result is called
};

const BusinessEngine::FunctionRow BusinessEngine::FunctionTable[] = {
    {Key::Interest, &BusinessEngine::FindInterest},
    {Key::Npv, &BusinessEngine::FindNPV},
    {Key::Irr, &BusinessEngine::FindIRR},
    {Key::DecliningBalance, &BusinessEngine::FindDecliningBalance},
    {Key::StraightLine, &BusinessEngine::FindStraightLine},
    {Key::SumOfYears, &BusinessEngine::FindSumOfYears},
    {Key::Amortization, &BusinessEngine::FindAmortization, InterestPaidMessage},
    {Key::BondPrice, &BusinessEngine::FindPrice},
    {Key::BondYield, &BusinessEngine::FindYield},
    {Key::Days, &BusinessEngine::FindDays},
};

const BusinessEngine::FunctionRow* BusinessEngine::FindFunction(std::string_view op) {
  const auto row = std::ranges::find(FunctionTable, op, [](const auto& one) { return one.Button.Caption; });
  return row == std::end(FunctionTable) ? nullptr : row;
}

void BusinessEngine::Evaluate(double first, double& second, std::string_view op) {
  if (op == Key::DateAfter.Caption) return AddToDate(first, second);
  if (const FunctionRow* row = FindFunction(op)) {
    second = (this->*row->Find)(second);
    Now.SpokenMsgId = row->ResultMessage;
    Says.Say(RegisterName());
    return ShowMoney(second);
  }
  const OperatorRow* money = FindOperator(business::MoneyOperators, op);
  if (!money) return EntryEngine::Evaluate(first, second, op);
  second = money->Apply(first, second);
  ShowMoney(second);
}

/// A date stands alone; a function and a percentage have their spoken names.
std::optional<std::string> BusinessEngine::BeginLine(double first, double second, std::string_view op) const {
  if (op == Key::DateAfter.Caption) return "";
  if (const FunctionRow* row = FindFunction(op)) return BeginResult(row->ResultMessage);
  for (const ControlSpec& button : {Key::PercentOfTotal, Key::PercentDifference})
    if (button.Caption == op) return EntryEngine::BeginLine(first, second, Says.Message(button.NameMessage));
  return EntryEngine::BeginLine(first, second, op);
}

std::span<const LineShape> BusinessEngine::LineShapes() const {
  return business::LineShapes;
}

double BusinessEngine::FindInterest(double) {
  return SimpleInterest(Now.Registers.PV, Now.Registers.I, Now.Registers.N, Modes.InterestBasis());
}

double BusinessEngine::FindNPV(double) {
  return rtcNPV(Now.Registers.I, Now.Registers.CF0, Now.Registers.CashFlows.Copy());
}

double BusinessEngine::FindIRR(double) {
  std::vector<double> flows = Now.Registers.CashFlows.Copy();
  flows.pop_back();
  flows.insert(flows.begin(), Now.Registers.CF0);
  return Checked(rtcIRR(flows) * 100);
}

double BusinessEngine::FindStraightLine(double) {
  return rtcSLN(Now.Registers.PV, Now.Registers.FV, Now.Registers.N);
}

double BusinessEngine::FindSumOfYears(double year) {
  return rtcSYD(Now.Registers.PV, Now.Registers.FV, Now.Registers.N, year);
}

double BusinessEngine::FindDecliningBalance(double year) {
  return rtcDDB(Now.Registers.PV, Now.Registers.FV, Now.Registers.N, year, Now.Registers.I);
}

/// The number of payments, where there is none, is found first, and stays even if the rest fails. It is cut
/// to a whole one, where a solved one is rounded up, and the chosen timing counts for it alone: wanted so.
double BusinessEngine::FindAmortization(double payments) {
  FinancialRegisters& r = Now.Registers;
  if (r.N == 0) r.N = Checked(std::trunc(SolvedPeriods()));
  const AmortizedPart part = Amortize(r.I, r.N, r.PV, ToInt16(payments));
  r.N -= payments;
  r.PV -= part.Principal;
  Now.AmortPrincipal = Checked(-part.Principal);
  Now.AmortInterest = Checked(-part.Interest);
  FinishResult(PrincipalPaidMessage, Now.AmortPrincipal);
  return Now.AmortInterest;
}

double BusinessEngine::FindPrice(double) {
  FinancialRegisters& r = Now.Registers;
  const Bond bond = {FindCoupons(r.BeginDate, r.EndDate), r.PMT, r.FV == 0 ? Par : r.FV};
  Now.BondValid = 0;
  const double price = BondPrice(bond, r.I);
  r.FV = bond.Redemption;
  Now.BondValid = bond.Coupons.Count;
  Now.AccruedInterest = AccruedInterest(bond);
  FinishResult(AccruedInterestMessage, Now.AccruedInterest);
  return Now.BondPrice = price;
}

double BusinessEngine::FindYield(double) {
  FinancialRegisters& r = Now.Registers;
  const Bond bond = {FindCoupons(r.BeginDate, r.EndDate), r.PMT, r.FV == 0 ? Par : r.FV};
  const double percent = Checked(BondYield(bond, r.PV) * 100);
  r.FV = bond.Redemption;
  return percent;
}

double BusinessEngine::FindDays(double) {
  return double{1} * Now.Registers.EndDate - Now.Registers.BeginDate;
}

}  // namespace qves
