// The one exception of the calculator.
#pragma once

#include <stdexcept>

namespace qves {

/// Thrown by checked arithmetic and conversions only: a division by zero, a domain error, a result that is
/// not finite, a text that is no number, a conversion out of its integer range.
class ArithmeticFault : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

}  // namespace qves
