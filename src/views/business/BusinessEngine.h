// The engine of the Business view: the entry engine with financial registers, the prefix keys that say what a
// register key does, and the functions that work on the registers.
#pragma once

#include "engine/EntryEngine.h"
#include "views/business/BusinessState.h"

namespace qves {

/// What the engine asks of the view.
class BusinessHost {
 public:
  virtual ~BusinessHost() = default;
  /// 0: payments at the end of a period; 1: at its beginning.
  virtual int PaymentMode() const = 0;
  /// See OddPeriodInterest.
  virtual int OddPeriod() const = 0;
  /// The days of a year for simple interest.
  virtual int InterestBasis() const = 0;
  virtual Date Today() const = 0;
  virtual const DateNames& NamesOfDates() const = 0;
};

/// What a register holds, as a recall gives it, with all its digits.
struct RegisterContent {
  int NameMessage;
  std::string Number;
  ValueKind Kind;
};

class BusinessEngine : public EntryEngine {
 public:
  BusinessEngine(BusinessState& state, EngineHost& host, BusinessHost& modes, Announcer& announcer);

  void BeginKey() override;
  void Memory(const PressedKey& key) override;

  // RegisterKeys.cpp
  /// CAL, RCL or STO: what the next register key does. It says its name and help each time.
  void PrefixKey(const PressedKey& key);
  /// Stores the entry in a register, recalls it or solves it.
  void RegisterKey(const PressedKey& key);
  /// Shows the other one of two results.
  void ExchangeKey(const PressedKey& key);
  /// The registers that are not as at the start: numbers that are not 0 and dates other than today.
  std::vector<RegisterContent> FilledRegisters() const;

  /// Every register to 0, the dates to today.
  void ClearFinancial();

 protected:
  void Evaluate(double first, double& second, std::string_view op) override;
  std::optional<std::string> BeginLine(double first, double second, std::string_view op) const override;
  std::span<const LineShape> LineShapes() const override;

 private:
  void ShowMoney(double value);
  void AddToDate(double first, double& second);
  std::string BeginResult(int nameMessage) const;
  /// A financial result that the line of no operator tells.
  void FinishResult(int nameMessage, double value);

  // RegisterKeys.cpp
  struct RegisterRow;
  static const RegisterRow RegisterTable[];
  static const RegisterRow& FindRegister(std::string_view tag);
  void Store(const RegisterRow& row);
  void Recall(const RegisterRow& row);
  void StoreFlow();
  void StoreCount();
  void RecallFlow();
  void RecallFlowCount();
  void RecallNothing() {}
  void FinishKey(ActionKind action);
  const std::string& RegisterName() const { return Says.Message(Now.SpokenMsgId); }

  // Solver.cpp
  struct SolverRow;
  static const SolverRow SolverTable[];
  void SolveRegister(std::string_view tag);
  double SolveFV();
  double SolvePMT();
  double SolvePV();
  double SolveI();
  double SolveN();
  double SolvedPeriods() const;
  double AdjustedPV() const;
  double OddFraction() const;
  int WholePeriods() const;

  // RegisterFunctions.cpp
  struct FunctionRow;
  static const FunctionRow FunctionTable[];
  static const FunctionRow* FindFunction(std::string_view op);
  double FindInterest(double);
  double FindNPV(double);
  double FindIRR(double);
  double FindDecliningBalance(double year);
  double FindStraightLine(double);
  double FindSumOfYears(double year);
  double FindAmortization(double payments);
  double FindPrice(double);
  double FindYield(double);
  double FindDays(double);

  BusinessHost& Modes;
  BusinessState& Now;
  ActionKind Prefix = ActionKind::None;  ///< the prefix that the key now acting has, if any
};

}  // namespace qves
