// Entry and evaluation: the state behind every view, and what each key does to it. There is no precedence: an
// operator first completes the one pending before it, strictly from left to right. A view whose engine knows
// more derives its own and overrides the few hooks below.
#pragma once

#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "engine/Announcer.h"
#include "engine/EntryState.h"
#include "engine/LineShape.h"
#include "engine/Operators.h"
#include "formulas/NumberBases.h"
#include "services/History.h"

namespace qves {

/// Where the engine shows its state.
class EngineHost {
 public:
  virtual ~EngineHost() = default;
  virtual void ShowDisplay(std::string_view text) = 0;
  /// The text shown grows at its end.
  virtual void ExtendDisplay(std::string_view text) = 0;
  virtual void ShowMemory(std::string_view indicator) = 0;
  /// A calculation is finished.
  virtual void Record(FinishedCalculation calculation) = 0;
};

/// The pressed key as the engine needs it.
struct PressedKey {
  std::string_view Caption;
  std::string_view SpokenName;
  std::string_view HelpText;
};

/// What waits for the rest of its calculation: a number with the caption of its operator, or a group that has
/// been opened.
struct OpenOperand {
  std::string Number;  ///< as entries are written; "" for a group
  std::string Operator;
};

/// What stands for a group in place of an operator.
inline constexpr std::string_view OpenGroupCaption = "(";

class EntryEngine {
 public:
  /// Acts on that state, which has to live longer.
  EntryEngine(EntryState& state, std::span<const OperatorRow> operators, EngineHost& host,
              Announcer& announcer)
      : Operators(operators), Host(host), Says(announcer), Now(state) {}
  virtual ~EntryEngine() = default;
  EntryEngine(const EntryEngine&) = delete;
  EntryEngine& operator=(const EntryEngine&) = delete;

  /// A key of the view is about to act.
  virtual void BeginKey() { Says.BeginKey(); }

  // What the keys of every view do. A view whose key does more overrides it.
  virtual void Digit(const PressedKey& key);
  virtual void DecimalPoint(const PressedKey& key);
  virtual void Backspace(const PressedKey& key);
  virtual void ClearEntry(const PressedKey& key);
  virtual void BinaryOperator(const PressedKey& key);
  virtual void UnaryOperator(const PressedKey& key);
  virtual void Equals(const PressedKey& key);
  /// MC, MR, MS, M+, C or Pi, by the caption.
  virtual void Memory(const PressedKey& key);

  /// Everything but the memory, back to "0".
  void ClearAll();
  /// Takes a number text, written in that number base, as MR takes the memory's: the digit typed next begins
  /// a new number. Faults when it is no number, or one that the engine's own number base cannot hold.
  virtual void TakeText(std::string_view text, int base);
  /// The same for a number, with all its digits where the number base has them.
  void TakeNumber(double value);
  /// Evaluates the operator of that caption; "" does nothing. `second` receives the result. A fault of the
  /// evaluation ends in the error state.
  void Calculate(double first, double& second, std::string_view op);
  /// The one error state: all cleared and "E" shown. It is a state of its own, not the text "E".
  void Fail(FaultReason reason);
  /// A fault outside an evaluation: the error state, and it is said.
  void FailAloud(FaultReason reason);

  /// Says what the display shows, after what has been said.
  void SayValue() { SayResult(""); }
  /// Shows the calculation, all of which may have changed.
  void ShowAll();

  bool InError() const { return Now.ErrorState; }
  /// Whether the display shows a value: not in the error state, nor while it shows what is none.
  virtual bool ShowsValue() const { return !InError(); }
  /// The number base of entries.
  virtual int Base() const { return NumberBase::Decimal; }
  /// What the display shows: the entry, or what stands in its place for the moment.
  const std::string& DisplayText() const { return Now.DisplayText(); }
  /// What the value is that the display shows.
  virtual ValueKind DisplayKind() const { return Now.EntryKind; }

  // OpenCalculation.cpp
  /// From the outside in; empty while nothing waits.
  virtual std::vector<OpenOperand> OpenCalculation() const;
  /// The memory's text as it would be recalled; nothing while nothing is stored.
  std::optional<std::string> StoredNumber() const;
  /// Of the error state.
  FaultReason Reason() const { return Now.Reason; }

 protected:
  /// Computes the operator and shows the result, which `second` receives.
  virtual void Evaluate(double first, double& second, std::string_view op);
  /// Makes the result the entry and shows it.
  virtual void ShowResult(double& value);
  /// The text of a number as entries are written.
  virtual std::string WriteNumber(double value) const;
  /// The number that a text written as entries are stands for; nothing when it is none.
  virtual std::optional<double> ReadNumber(std::string_view text) const;
  /// The memory's text as entries are written.
  virtual std::string RecalledText() const { return Now.MemoryCell.Text(); }
  /// A number text of that base in the engine's own; "0" is 0 in every base, however long a zero would be
  /// written. Faults when it cannot be written so.
  std::string InOwnBase(std::string_view text, int base) const;
  /// The memory has just been written.
  virtual void OnStored() {}
  virtual void OnClearAll() {}
  /// Whether a binary operator completes the one pending before it.
  virtual bool OperatorCompletesPending() const;

  // CalculationLines.cpp
  /// What the line of a calculation shows before its result; nothing for what is no calculation.
  virtual std::optional<std::string> BeginLine(double first, double second, std::string_view op) const;
  /// Of the operators with one operand. One that is not among them puts its result alone on its line.
  virtual std::span<const LineShape> LineShapes() const { return {}; }
  /// A calculation is finished and shown.
  virtual void Finish(FinishedCalculation calculation);

  /// As WriteNumber, but never faults.
  std::string Written(double value) const;
  /// As ReadNumber, but faults when the text is no number.
  double ValueOf(std::string_view text) const;
  bool SecondOperandDue() const;
  void BeginSecondOperand();
  void CompletePending();
  void Show(ValueKind kind = ValueKind::Number);
  /// Shows that text instead of the entry until the entry is shown again.
  void ShowInstead(std::string_view text);
  void ExtendInstead(std::string_view text);
  /// True when the display shows the entry itself.
  bool ShowsEntry() const { return Now.InsteadOfEntry.empty(); }
  void SayResult(std::string_view leadIn);

  std::span<const OperatorRow> Operators;
  EngineHost& Host;
  Announcer& Says;

 private:
  bool StartsAnew() const;
  bool StartsOperand() const;
  bool EntryHoldsPoint() const;
  void ExtendEntry(std::string_view text);
  const std::string& Separator() const;

  struct MemoryRow;
  static const MemoryRow MemoryTable[];
  void ClearMemory();
  void ReturnMemory();
  void StoreMemory();
  void AddMemory();
  void RecallPi();
  void Recall(std::string text, double value);
  bool RefuseNoNumber();
  void FinishMemoryKey();

  EntryState& Now;
};

}  // namespace qves
