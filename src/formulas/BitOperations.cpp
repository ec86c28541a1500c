#include "formulas/BitOperations.h"

#include "formulas/Numbers.h"
#include "model/ArithmeticFault.h"

namespace qves {

double BitAnd(double first, double second) {
  return ToInt32(first) & ToInt32(second);
}

double BitOr(double first, double second) {
  return ToInt32(first) | ToInt32(second);
}

double BitXor(double first, double second) {
  return ToInt32(first) ^ ToInt32(second);
}

double BitNot(double, double x) {
  return ~ToInt32(x);
}

double Modulo(double first, double second) {
  const auto dividend = ToInt32(first);
  const auto divisor = ToInt32(second);
  if (divisor == 0) throw ArithmeticFault(FaultReason::DivisionByZero, "remainder of a division by zero");
  return divisor == -1 ? 0 : dividend % divisor;  // the smallest integer by -1 would overflow
}

}  // namespace qves
