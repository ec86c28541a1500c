// CAL and a register key: the register is solved from the other four.
#include <algorithm>
#include <cmath>

#include "formulas/Annuity.h"
#include "formulas/Numbers.h"
#include "formulas/OddPeriod.h"
#include "views/business/BusinessButtons.h"
#include "views/business/BusinessEngine.h"

namespace qves {

namespace Key = business::Buttons;

namespace {
constexpr double WholeTolerance = 1e-9;  // rounding noise of a solved number of periods
}

struct BusinessEngine::SolverRow {
  std::string_view Tag;
  double (BusinessEngine::*Solve)();  ///< sets the register; gives what is shown
};

const BusinessEngine::SolverRow BusinessEngine::SolverTable[] = {
    {Key::FV.Caption, &BusinessEngine::SolveFV}, {Key::PMT.Caption, &BusinessEngine::SolvePMT},
    {Key::PV.Caption, &BusinessEngine::SolvePV}, {Key::I.Caption, &BusinessEngine::SolveI},
    {Key::N.Caption, &BusinessEngine::SolveN},
};

/// A register that cannot be solved only has its name spoken with the value shown.
void BusinessEngine::SolveRegister(std::string_view tag) {
  WholePeriods();  // more than a 16-bit count of them is a fault, whatever is solved
  const auto* row = std::ranges::find(SolverTable, tag, &SolverRow::Tag);
  const bool isSolved = row != std::end(SolverTable);
  if (isSolved) Now.CurrentValue = (this->*row->Solve)();
  ShowMoney(Now.CurrentValue);
  if (isSolved) FinishResult(Now.SpokenMsgId, Now.CurrentValue);
  Says.SayValue(DisplayText(), DisplayKind(), RegisterName() + " ");
  FinishKey(ActionKind::Uop);
}

int BusinessEngine::WholePeriods() const {
  return ToInt16(std::trunc(Now.Registers.N));
}

double BusinessEngine::OddFraction() const {
  return Now.Registers.N - std::trunc(Now.Registers.N);
}

/// The present value with the interest of the odd period, which comes before the whole ones.
double BusinessEngine::AdjustedPV() const {
  return OddPeriodGrown(Now.Registers.PV, Now.Registers.I, OddFraction(), Modes.OddPeriod());
}

/// The present value keeps the odd period's interest: solved twice in a row it has it twice. This is wanted,
/// here and in SolvePMT.
double BusinessEngine::SolveFV() {
  const double presentValue = AdjustedPV();
  Now.Registers.FV =
      rtcFV(Now.Registers.I, WholePeriods(), Now.Registers.PMT, presentValue, Modes.PaymentMode());
  Now.Registers.PV = presentValue;
  return Now.Registers.FV;
}

double BusinessEngine::SolvePMT() {
  const double presentValue = AdjustedPV();
  Now.Registers.PMT =
      rtcPMT(Now.Registers.I, WholePeriods(), presentValue, Now.Registers.FV, Modes.PaymentMode());
  Now.Registers.PV = presentValue;
  return Now.Registers.PMT;
}

double BusinessEngine::SolvePV() {
  const FinancialRegisters& r = Now.Registers;
  return Now.Registers.PV = OddPeriodPV(
             r.I, {WholePeriods(), OddFraction(), r.PMT, r.PV, r.FV, Modes.PaymentMode(), Modes.OddPeriod()});
}

double BusinessEngine::SolveI() {
  const FinancialRegisters& r = Now.Registers;
  const Real rate = OddFraction() == 0 ? rtcRate(WholePeriods(), r.PMT, r.PV, r.FV, Modes.PaymentMode())
                                       : SolveRateOdd({WholePeriods(), OddFraction(), r.PMT, r.PV, r.FV,
                                                       Modes.PaymentMode(), Modes.OddPeriod()});
  const double percent = Checked(rate * 100, FaultReason::NoSolution);
  Now.Registers.I = Checked(rate);
  return percent;
}

/// The number of periods that the other four give; rounding noise beside a whole number is cut off.
double BusinessEngine::SolvedPeriods() const {
  const FinancialRegisters& r = Now.Registers;
  const double periods = rtcNPer(r.I, r.PMT, r.PV, r.FV, Modes.PaymentMode());
  const double nearest = Checked(std::nearbyint(periods));
  return std::fabs(periods - nearest) < WholeTolerance ? nearest : periods;
}

/// A final part of a period counts as a whole one. Only pure growth, without payments, keeps its fraction.
double BusinessEngine::SolveN() {
  const FinancialRegisters& r = Now.Registers;
  const bool isGrowth = r.PMT == 0 && r.PV != 0 && r.FV != 0 && r.I != 0;
  const double periods = SolvedPeriods();
  const double whole = std::trunc(periods);
  return Now.Registers.N = isGrowth || whole == periods ? periods : whole + 1;
}

}  // namespace qves
