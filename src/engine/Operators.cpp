#include "engine/Operators.h"

#include <cmath>

#include "engine/Numbers.h"
#include "model/ArithmeticFault.h"

namespace qves {

const OperatorRow* FindOperator(std::span<const OperatorRow> table, std::string_view caption) {
  for (const OperatorRow& row : table)
    if (row.Caption == caption) return &row;
  return nullptr;
}

double Add(double first, double second) {
  return Checked(first + second);
}

double Subtract(double first, double second) {
  return Checked(first - second);
}

double Multiply(double first, double second) {
  return Checked(first * second);
}

double Divide(double first, double second) {
  if (second == 0) throw ArithmeticFault("division by zero");
  return Checked(first / second);
}

double ChangeSign(double, double second) {
  return second * -1;
}

double Percent(double, double second) {
  return second * 0.01;
}

double Reciprocal(double, double second) {
  return Divide(1, second);
}

double SquareRoot(double, double second) {
  if (second < 0) throw ArithmeticFault("square root of a negative number");
  return std::sqrt(second);
}

}  // namespace qves
