#include "formulas/Arithmetic.h"

#include <cmath>

#include "formulas/Numbers.h"
#include "model/ArithmeticFault.h"

namespace qves {

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
  if (second == 0) throw ArithmeticFault(FaultReason::DivisionByZero, "division by zero");
  return Checked(first / second);
}

double ChangeSign(double, double second) {
  return Checked(-second);
}

double Percent(double, double second) {
  return Multiply(second, 0.01);
}

double Reciprocal(double, double second) {
  return Divide(1, second);
}

double SquareRoot(double, double second) {
  if (second < 0) throw ArithmeticFault(FaultReason::NegativeRoot, "square root of a negative number");
  return std::sqrt(second);
}

}  // namespace qves
