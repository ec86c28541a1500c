// The engine of the Scientific view: the entry engine with inverse and hyperbolic functions, scientific
// notation, exponent entry, number bases and parentheses.
#pragma once

#include "engine/EntryEngine.h"
#include "views/scientific/ScientificState.h"

namespace qves {

/// What the engine asks of the view's own controls.
class ScientificHost {
 public:
  virtual ~ScientificHost() = default;
  virtual bool InverseChecked() const = 0;
  virtual bool HyperbolicChecked() const = 0;
  virtual void ClearInverse() = 0;
  virtual void ClearHyperbolic() = 0;
  /// The list index of the angle unit.
  virtual int TrigMode() const = 0;
  /// The next random number, in [0, 1).
  virtual double NextRandom() = 0;
};

class ScientificEngine : public EntryEngine {
 public:
  ScientificEngine(ScientificState& state, EngineHost& host, ScientificHost& modes, Announcer& announcer);

  // In an exponent entry these three belong to the exponent (ExponentKeys.cpp).
  void Digit(const PressedKey& key) override;
  void DecimalPoint(const PressedKey& key) override;
  void Backspace(const PressedKey& key) override;

  // These end it.
  void ClearEntry(const PressedKey& key) override;
  void BinaryOperator(const PressedKey& key) override;
  void UnaryOperator(const PressedKey& key) override;
  void Equals(const PressedKey& key) override;
  void Memory(const PressedKey& key) override;

  // ParenthesisKeys.cpp
  void LeftParen(const PressedKey& key);
  void RightParen(const PressedKey& key);

  /// Writes the entry in another base; the next digit starts a new number. A number outside 32 bits faults,
  /// and the base is another all the same.
  void ChangeBase(int base);

  void TakeText(std::string_view text, int base) override;
  bool ShowsValue() const override { return EntryEngine::ShowsValue() && ShowsEntry(); }
  std::vector<OpenOperand> OpenCalculation() const override;  // ParenthesisKeys.cpp
  int Base() const override { return Now.NumBase; }
  ValueKind DisplayKind() const override {
    return Now.NumBase == NumberBase::Decimal ? ValueKind::Number : ValueKind::BaseDigits;
  }

 protected:
  void Evaluate(double first, double& second, std::string_view op) override;
  void ShowResult(double& value) override;
  std::string WriteNumber(double value) const override;
  std::optional<double> ReadNumber(std::string_view text) const override;
  std::string RecalledText() const override { return InOwnBase(Now.MemoryCell.Text(), Now.MemoryBase); }
  void OnStored() override { Now.MemoryBase = Now.NumBase; }
  void OnClearAll() override;
  bool OperatorCompletesPending() const override;

  // ScientificLines.cpp
  std::optional<std::string> BeginLine(double first, double second, std::string_view op) const override;
  std::span<const LineShape> LineShapes() const override;

 private:
  struct EntryOperator;
  static const EntryOperator EntryOperators[];
  const EntryOperator* FindEntryOperator(std::string_view op) const;
  double Compute(double first, double second, std::string_view op);
  double ComputeTrig(std::string_view op, double x);
  void ToggleNotation();

  // ExponentKeys.cpp
  void StartExponent();
  bool RefusesExponent();
  void FlipExponentSign();
  /// What is typed from now on is no exponent; true when it was one.
  bool EndExponent();
  void ShowExponent();
  void DropExponentDigit();

  // ParenthesisKeys.cpp
  OuterOperand BeginGroup();
  OuterOperand BeginInnerGroup();
  void RestoreOuterOperand();
  bool GroupIsEmpty() const;

  ScientificHost& Modes;

  ScientificState& Now;
};

}  // namespace qves
