// The operators of a view as a table.
#pragma once

#include <span>
#include <string_view>

namespace qves {

enum class Arity { Unary, Binary };

/// Takes the first and the second operand (a unary operator looks at the second only); faults outside its
/// domain.
using OperatorFunction = double (*)(double first, double second);

struct OperatorRow {
  std::string_view Caption;
  Arity Operands = Arity::Binary;
  OperatorFunction Apply = nullptr;
  OperatorFunction Inverse = nullptr;  ///< with the inverse box checked; none: as without it
};

/// The operator of that caption; null when the table has none.
const OperatorRow* FindOperator(std::span<const OperatorRow> table, std::string_view caption);

}  // namespace qves
