// The arithmetic that every view has.
#pragma once

namespace qves {

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
