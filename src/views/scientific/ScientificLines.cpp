// The lines that tell of the Scientific view's calculations.
#include "formulas/Numbers.h"
#include "formulas/Trigonometry.h"
#include "model/ArithmeticFault.h"
#include "views/scientific/ScientificEngine.h"
#include "views/scientific/ScientificShapes.h"

namespace qves {

namespace Key = scientific::Buttons;

std::optional<std::string> ScientificEngine::BeginLine(double first, double second,
                                                       std::string_view op) const {
  if (FindEntryOperator(op)) return std::nullopt;  // it only changes how the entry is written
  if (op == Key::Random.Caption) return "";
  const bool isTrig = IsTrigFunction(op);
  const OperatorRow* row = FindOperator(Operators, op);
  const bool isInverse = (isTrig || (row && row->Inverse)) && Modes.InverseChecked();
  auto line = EntryEngine::BeginLine(first, second, op == Key::Power.Caption ? scientific::PowerSign : op);
  if (isTrig && Modes.HyperbolicChecked()) line->insert(0, scientific::HyperbolicMark);
  if (isInverse) line->insert(0, scientific::InverseMark);
  return line;
}

std::span<const LineShape> ScientificEngine::LineShapes() const {
  return scientific::LineShapes;
}

}  // namespace qves
