// The operators of the Business view that need no register. "date" and the financial functions stand in
// BusinessEngine.
#pragma once

#include "engine/Operators.h"
#include "formulas/Arithmetic.h"
#include "formulas/Percent.h"

namespace qves::business {

// caption, operands, function
inline constexpr OperatorRow Operators[] = {
    {"+", Arity::Binary, Add},         {"-", Arity::Binary, Subtract},     {"*", Arity::Binary, Multiply},
    {"/", Arity::Binary, Divide},      {"sqrt", Arity::Unary, SquareRoot}, {"+/-", Arity::Unary, ChangeSign},
    {"1/x", Arity::Unary, Reciprocal}, {"%", Arity::Unary, Percent},
};

inline constexpr double MonthsAYear = 12;

/// Those whose result is shown with two decimals.
inline constexpr OperatorRow MoneyOperators[] = {
    {"%T", Arity::Binary, PercentOfTotal},
    {"d%", Arity::Binary, PercentDifference},
    {"x12", Arity::Unary, [](double, double x) { return Multiply(x, MonthsAYear); }},
    {"/12", Arity::Unary, [](double, double x) { return Divide(x, MonthsAYear); }},
};

}  // namespace qves::business
