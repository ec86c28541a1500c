// The evaluation of an operator, and the line that tells of it.
#include "engine/EntryEngine.h"
#include "formulas/Numbers.h"
#include "model/ArithmeticFault.h"

namespace qves {

void EntryEngine::Calculate(double first, double& second, std::string_view op) {
  if (op.empty()) return;
  try {
    auto line = BeginLine(first, second, op);  // what the evaluation changes is gone afterwards
    Evaluate(first, second, op);
    if (line) Finish({std::move(*line) + DisplayText(), second, Base()});
  } catch (const ArithmeticFault& fault) {
    Fail(fault.Reason());
  }
}

void EntryEngine::Evaluate(double first, double& second, std::string_view op) {
  if (const OperatorRow* row = FindOperator(Operators, op)) second = row->Apply(first, second);
  ShowResult(second);
}

std::optional<std::string> EntryEngine::BeginLine(double first, double second, std::string_view op) const {
  for (const LineShape& shape : LineShapes())
    if (shape.Caption == op) return std::string(shape.Lead).append(Written(second)).append(shape.Tail);
  const OperatorRow* row = FindOperator(Operators, op);
  if (row && row->Operands == Arity::Unary) return "";
  return Written(first).append(" ").append(op).append(" ").append(Written(second)).append(" = ");
}

void EntryEngine::Finish(FinishedCalculation calculation) {
  Host.Record(std::move(calculation));
}

}  // namespace qves
