// The operators that only the Business view has and that need no register. The date and the financial
// functions stand in BusinessEngine.
#pragma once

#include "engine/Operators.h"
#include "formulas/Arithmetic.h"
#include "formulas/Percent.h"
#include "views/business/BusinessButtons.h"

namespace qves::business {

inline constexpr double MonthsAYear = 12;

/// Those whose result is shown with two decimals.
inline constexpr OperatorRow MoneyOperators[] = {
    {Buttons::PercentOfTotal.Caption, Arity::Binary, PercentOfTotal},
    {Buttons::PercentDifference.Caption, Arity::Binary, PercentDifference},
    {Buttons::Times12.Caption, Arity::Unary, [](double, double x) { return Multiply(x, MonthsAYear); }},
    {Buttons::By12.Caption, Arity::Unary, [](double, double x) { return Divide(x, MonthsAYear); }},
};

}  // namespace qves::business
