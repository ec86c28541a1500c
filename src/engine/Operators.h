// The operators of a view as a table, and the arithmetic that every view shares.
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

double Add(double first, double second);
double Subtract(double first, double second);
double Multiply(double first, double second);
/// Faults when `second` is 0.
double Divide(double first, double second);
double ChangeSign(double, double second);
/// The hundredth part of the value; it never looks at the first operand. That is wanted.
double Percent(double, double second);
/// Faults when `second` is 0.
double Reciprocal(double, double second);
/// Faults when `second` is below 0.
double SquareRoot(double, double second);

}  // namespace qves
