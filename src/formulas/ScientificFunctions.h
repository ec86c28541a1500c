// Powers, roots, logarithms, the factorial, the parts of a number and the shift. Each takes the first and the
// second operand as the operator table hands them over; functions of one operand look at the second only.
#pragma once

namespace qves {

double Square(double, double x);
double Cube(double, double x);
/// Faults when x is below 0.
double CubeRoot(double, double x);
/// The first operand raised to the second. Faults for a negative base with a fractional exponent, and for 0
/// with a negative one.
double Power(double base, double exponent);
/// The root of the first operand that the second names: a power of 1 / degree. Faults when degree is 0 and
/// where Power does.
double Root(double radicand, double degree);

/// Faults when x is not above 0.
double NaturalLog(double, double x);
double CommonLog(double, double x);
double Exponential(double, double x);
double PowerOfTen(double, double x);

/// 1 x 2 x ... x k, with k the whole part of x; 1 for k = 0. Faults when x is below 0, when k is beyond a
/// signed 16-bit count, and above 170, where the product is beyond a double.
double Factorial(double, double x);

/// x truncated toward zero, and what that takes away, with the sign of x.
double WholePart(double, double x);
double FractionalPart(double, double x);

/// value x 2^places, and value / 2^places. Any number of places, also a fraction. Faults when 2^places is
/// beyond a double, and the division when it is 0.
double ShiftLeft(double value, double places);
double ShiftRight(double value, double places);

}  // namespace qves
