#include "formulas/ScientificFunctions.h"

#include <cmath>

#include "formulas/Arithmetic.h"
#include "formulas/Numbers.h"
#include "model/ArithmeticFault.h"

namespace qves {
namespace {

void CheckLogarithm(double x) {
  if (!(x > 0)) throw ArithmeticFault(FaultReason::NoLogarithm, "logarithm of zero or less");
}

}  // namespace

double Square(double, double x) {
  return Multiply(x, x);
}

double Cube(double, double x) {
  return Power(x, 3);
}

double CubeRoot(double, double x) {
  if (x < 0) throw ArithmeticFault(FaultReason::NegativeRoot, "cube root of a negative number");
  return std::cbrt(x);
}

double Power(double base, double exponent) {
  if (base == 0 && exponent < 0) throw ArithmeticFault(FaultReason::DivisionByZero, "negative power of zero");
  if (base < 0 && exponent != std::trunc(exponent))
    throw ArithmeticFault(FaultReason::NegativeRoot, "broken power of a negative number");
  return Checked(std::pow(base, exponent));
}

double Root(double radicand, double degree) {
  return Power(radicand, Divide(1, degree));
}

double NaturalLog(double, double x) {
  CheckLogarithm(x);
  return Checked(std::log(x));
}

double CommonLog(double, double x) {
  CheckLogarithm(x);
  return Checked(std::log10(x));
}

double Exponential(double, double x) {
  return Checked(std::exp(x));
}

double PowerOfTen(double, double x) {
  return Power(10, x);
}

double Factorial(double, double x) {
  if (x < 0) throw ArithmeticFault(FaultReason::NegativeFactorial, "factorial of a negative number");
  // Not in doubles: 170 roundings would show in the last digit.
  Real product = 1;
  for (int factor = 2; factor <= std::trunc(x) && std::isfinite(product); ++factor) product *= factor;
  return Checked(product);
}

double WholePart(double, double x) {
  return Checked(std::trunc(x));
}

double FractionalPart(double, double x) {
  return x - std::trunc(x);
}

double ShiftLeft(double value, double places) {
  return Multiply(value, Checked(std::exp2(places)));
}

double ShiftRight(double value, double places) {
  const double divisor = Checked(std::exp2(places));
  if (divisor == 0) throw ArithmeticFault(FaultReason::TooLarge, "a shift too far to the left");
  return Divide(value, divisor);
}

}  // namespace qves
