// The operators of a view as a table, and the arithmetic that every view shares.
#pragma once

#include <span>
#include <string_view>

namespace qves {

enum class Arity { Unary, Binary };

/// One operator. `Apply` takes the first and the second operand (a unary operator looks at the second only)
/// and faults outside its domain.
struct OperatorRow {
  std::string_view Caption;
  Arity Operands = Arity::Binary;
  double (*Apply)(double first, double second) = nullptr;
  std::string_view TapeLead = {};  ///< before the operand on the tape line of a unary operator
  std::string_view TapeTail = {};  ///< after it; both empty: the tape line is the result alone
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
