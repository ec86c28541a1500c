#include "views/standard/StandardEngine.h"

#include "formulas/Numbers.h"
#include "views/standard/StandardOperators.h"

namespace qves {
namespace {

/// What the tape shows of a calculation before its result.
std::string BeginTapeLine(double first, double second, std::string_view op) {
  const OperatorRow* row = FindOperator(standard::Operators, op);
  const std::string operand = NumberToText(second);
  if (!row || row->Operands == Arity::Binary)
    return NumberToText(first) + " " + std::string(op) + " " + operand + " = ";
  for (const standard::TapeShape& shape : standard::TapeShapes)
    if (shape.Caption == op) return std::string(shape.Lead) + operand + std::string(shape.Tail);
  return "";
}

}  // namespace

StandardEngine::StandardEngine(EngineHost& host, TapeHost& tapeHost, Announcer& announcer)
    : EntryEngine(standard::Operators, host, announcer), TapeShown(tapeHost) {}

void StandardEngine::Evaluate(double first, double& second, std::string_view op) {
  TapeLine = BeginTapeLine(first, second, op);
  EntryEngine::Evaluate(first, second, op);
  TapeLine += EntryText;
  const std::string line = TapeLine + "\r\n";
  TapeText += line;
  TapeShown.AppendTape(line);
}

void StandardEngine::ClearEverything() {
  ClearAll();
  TapeText.clear();
  TapeShown.ClearTape();
}

StateFields StandardEngine::Fields() const {
  StateFields fields = EntryEngine::Fields();
  fields.push_back({"TapeLine", TapeLine});
  fields.push_back({"TapeText", TapeText});
  return fields;
}

}  // namespace qves
