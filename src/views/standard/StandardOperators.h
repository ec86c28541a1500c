// The operators of the Standard view.
#pragma once

#include "engine/Operators.h"

namespace qves::standard {

// caption, operands, function, tape line before and after the operand
inline constexpr OperatorRow Operators[] = {
    {"+", Arity::Binary, Add, "", ""},
    {"-", Arity::Binary, Subtract, "", ""},
    {"*", Arity::Binary, Multiply, "", ""},
    {"/", Arity::Binary, Divide, "", ""},
    {"sqrt", Arity::Unary, SquareRoot, "Sqr(", ") = "},
    {"+/-", Arity::Unary, ChangeSign, "", ""},
    {"1/x", Arity::Unary, Reciprocal, "1 / ", " = "},
    {"%", Arity::Unary, Percent, "", ""},
};

}  // namespace qves::standard
