// Which buttons make sense in which number base.
#pragma once

#include <functional>

#include "formulas/NumberBases.h"
#include "views/scientific/ScientificButtons.h"

namespace qves::scientific {

/// How many digits a base has, by its list index.
inline constexpr int DigitsOf[] = {16, 10, 8, 2};

/// Enabled in the decimal base only.
inline constexpr std::reference_wrapper<const ControlSpec> DecimalButtons[] = {
    Buttons::Sin,      Buttons::Cos,    Buttons::Tan, Buttons::Notation, Buttons::ExpOfX,
    Buttons::Exponent, Buttons::Random, Buttons::Pi,  Buttons::Point,
};

}  // namespace qves::scientific
