// Which buttons make sense in which number base.
#pragma once

#include <string_view>

#include "formulas/NumberBases.h"
#include "model/Control.h"

namespace qves::scientific {

/// The controls of an array from one index to another, and the bases in which they are enabled.
struct BaseButtonRow {
  std::string_view Array;
  int First;
  int Last;
  unsigned Bases;  ///< bit set, by list index
};

constexpr unsigned In(int base) {
  return 1U << base;
}

inline constexpr BaseButtonRow BaseButtons[] = {
    {"cmdDigit", 2, 7, In(NumberBase::Hexadecimal) | In(NumberBase::Decimal) | In(NumberBase::Octal)},
    {"cmdDigit", 8, 9, In(NumberBase::Hexadecimal) | In(NumberBase::Decimal)},
    {"cmdDigit", 10, 15, In(NumberBase::Hexadecimal)},
    {"cmdUOp", 4, 6, In(NumberBase::Decimal)},    // sin, cos, tan
    {"cmdUOp", 13, 16, In(NumberBase::Decimal)},  // F-E, e^x, Exp, Rnd
    {"cmdMemory", 5, 5, In(NumberBase::Decimal)},
    {"cmdDecimal", NoIndex, NoIndex, In(NumberBase::Decimal)},
};

}  // namespace qves::scientific
