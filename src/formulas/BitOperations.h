// Operations on whole numbers of 32 bits. Every operand is first rounded, halves to even, to a signed 32-bit
// integer; one outside that range is a fault.
#pragma once

namespace qves {

double BitAnd(double first, double second);
double BitOr(double first, double second);
double BitXor(double first, double second);
double BitNot(double, double x);
/// The remainder with the sign of the first operand. Faults when the second is 0.
double Modulo(double first, double second);

}  // namespace qves
