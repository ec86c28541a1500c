#include "views/standard/StandardEngine.h"

#include "formulas/Numbers.h"
#include "views/SharedOperators.h"
#include "views/standard/TapeShapes.h"

namespace qves {
namespace {

/// What the tape shows of a calculation before its result.
std::string BeginTapeLine(double first, double second, std::string_view op) {
  const OperatorRow* row = FindOperator(shared::Operators, op);
  const std::string operand = NumberToText(second);
  if (!row || row->Operands == Arity::Binary)
    return NumberToText(first) + " " + std::string(op) + " " + operand + " = ";
  for (const standard::TapeShape& shape : standard::TapeShapes)
    if (shape.Caption == op) return std::string(shape.Lead) + operand + std::string(shape.Tail);
  return "";
}

}  // namespace

StandardEngine::StandardEngine(StandardState& state, EngineHost& host, TapeHost& tapeHost,
                               Announcer& announcer)
    : EntryEngine(state, shared::Operators, host, announcer), TapeShown(tapeHost), Now(state) {}

void StandardEngine::Evaluate(double first, double& second, std::string_view op) {
  Now.TapeLine = BeginTapeLine(first, second, op);
  EntryEngine::Evaluate(first, second, op);
  Now.TapeLine += Now.EntryText;
  Now.Tape.Append(Now.TapeLine);
  TapeShown.AppendTape(Now.TapeLine + "\r\n");
}

/// The clear-all key empties the tape, too; what else clears keeps it.
void StandardEngine::Memory(const PressedKey& key) {
  if (key.Caption == Buttons::ClearAll.Caption) {
    Now.Tape.Clear();
    TapeShown.ClearTape();
  }
  EntryEngine::Memory(key);
}

}  // namespace qves
