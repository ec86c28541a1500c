#include "engine/Operators.h"

namespace qves {

const OperatorRow* FindOperator(std::span<const OperatorRow> table, std::string_view caption) {
  for (const OperatorRow& row : table)
    if (row.Caption == caption) return &row;
  return nullptr;
}

}  // namespace qves
