// Trigonometric and hyperbolic functions and their inverses.
#pragma once

#include <string_view>

namespace qves {

/// The list index of the angle unit.
enum AngleUnit : int { Degrees = 0, Radians = 1, Grads = 2 };

struct TrigModes {
  bool Inverse = false;
  bool Hyperbolic = false;
  int Unit = Degrees;  ///< of the angle that goes in or comes out; hyperbolic functions have none
};

/// The angle, given in that unit, in radians. Faults when it is not finite.
double ToRadians(double angle, int unit);
/// The angle, given in radians, in that unit.
double FromRadians(double radians, int unit);

/// Whether `op` is "sin", "cos" or "tan".
bool IsTrigFunction(std::string_view op);

/// "sin", "cos" or "tan" of x, or its inverse, hyperbolic or inverse hyperbolic variant. A result that is
/// closer than 1e-15 to its whole part is that whole part. Faults outside the function's domain and when the
/// result is not finite; the poles of the tangent are left to the caller.
double TrigFunction(std::string_view op, double x, const TrigModes& modes);

}  // namespace qves
