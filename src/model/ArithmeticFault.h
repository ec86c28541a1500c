// The one exception of the calculator.
#pragma once

#include <stdexcept>

namespace qves {

/// Why there is no result, as the user is told it. A message each, in this order.
enum class FaultReason {
  DivisionByZero,
  NegativeRoot,
  NoLogarithm,
  NegativeFactorial,
  NotDefined,
  NotANumber,
  TooLarge,
  OutOfBase,
  OutOfRange,
  TooManyParentheses,
  NoSolution,
  NoSuchDate,
  NoSuchFlow,
  ListFull,
};

/// Thrown by checked arithmetic and conversions only: a division by zero, a domain error, a result that is
/// not finite, a text that is no number, a conversion out of its integer range.
class ArithmeticFault : public std::runtime_error {
 public:
  ArithmeticFault(FaultReason reason, const char* detail) : std::runtime_error(detail), Why(reason) {}
  FaultReason Reason() const { return Why; }

 private:
  FaultReason Why;
};

}  // namespace qves
