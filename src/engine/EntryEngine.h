// Entry and evaluation: the state behind every view, and what each key does to it. There is no precedence: an
// operator first completes the one pending before it, strictly from left to right.
#pragma once

#include <span>
#include <string>
#include <string_view>

#include "engine/Announcer.h"
#include "engine/LastAction.h"
#include "engine/MemoryRegister.h"
#include "engine/Operators.h"
#include "model/StateField.h"

namespace qves {

/// Where the engine shows its state.
class EngineHost {
 public:
  virtual ~EngineHost() = default;
  virtual void ShowDisplay(std::string_view text) = 0;
  /// The text shown grows at its end.
  virtual void ExtendDisplay(std::string_view text) = 0;
  virtual void ShowMemory(std::string_view indicator) = 0;
  /// A line was added to the tape; it ends with "\r\n".
  virtual void AppendTape(std::string_view line) = 0;
  virtual void ClearTape() = 0;
};

/// The pressed key as the engine needs it.
struct PressedKey {
  std::string_view Caption;
  std::string_view SpokenName;
};

class EntryEngine {
 public:
  EntryEngine(std::span<const OperatorRow> operators, EngineHost& host, Announcer& announcer)
      : Operators(operators), Host(host), Says(announcer) {}
  virtual ~EntryEngine() = default;
  EntryEngine(const EntryEngine&) = delete;
  EntryEngine& operator=(const EntryEngine&) = delete;

  void Digit(const PressedKey& key);
  void DecimalPoint(const PressedKey& key);
  void Backspace(const PressedKey& key);
  void ClearEntry(const PressedKey& key);
  void BinaryOperator(const PressedKey& key);
  void UnaryOperator(const PressedKey& key);
  void Equals(const PressedKey& key);
  /// MC, MR, MS, M+ or C, by the caption.
  void Memory(const PressedKey& key);

  /// Everything but the memory and the tape, back to "0".
  void ClearAll();
  /// Evaluates the operator of that caption; "" does nothing. `second` receives the result. A fault of the
  /// evaluation ends in the error state.
  void Calculate(double first, double& second, std::string_view op);
  /// The one error state: all cleared and "E" shown. It is a state of its own, not the text "E".
  void Fail();
  /// A fault outside an evaluation: the error state, and it is said.
  void FailAloud();

  bool InError() const { return ErrorState; }
  /// What the display shows.
  const std::string& DisplayText() const { return EntryText; }
  const std::string& Tape() const { return TapeText; }
  StateFields Fields() const;

 private:
  bool StartsAnew() const;
  bool SecondOperandDue() const;
  void BeginSecondOperand();
  bool EntryHoldsPoint() const;
  void CompletePending();
  void Evaluate(double first, double& second, std::string_view op);
  void WriteTapeLine();
  void Show();
  void ExtendEntry(std::string_view text);
  const std::string& Separator() const;
  void SayResult(std::string_view leadIn);

  struct MemoryRow;
  static const MemoryRow MemoryTable[];
  void ClearMemory();
  void ReturnMemory();
  void StoreMemory();
  void AddMemory();
  void ClearAllAndTape();
  bool RefuseNoNumber();

  std::span<const OperatorRow> Operators;
  EngineHost& Host;
  Announcer& Says;
  MemoryRegister MemoryCell;

  std::string PrevEntryText = "0";
  std::string EntryText = "0";
  double Accumulator = 0;
  double CurrentValue = 0;
  bool DecimalEntered = false;
  std::string PendingOp;
  std::string CurrentOp;
  qves::LastAction LastAction = qves::LastAction::None;
  std::string TapeLine;
  std::string TapeText;
  bool ErrorState = false;
  bool SecondOperandBegun =
      false;  ///< by a digit, a point, a clear entry or a recall after the pending operator
};

}  // namespace qves
