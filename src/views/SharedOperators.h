// The operators of the views that have no inverse box.
#pragma once

#include "engine/Buttons.h"
#include "engine/Operators.h"
#include "formulas/Arithmetic.h"

namespace qves::shared {

// caption, operands, function
inline constexpr OperatorRow Operators[] = {
    {Buttons::Add.Caption, Arity::Binary, Add},
    {Buttons::Subtract.Caption, Arity::Binary, Subtract},
    {Buttons::Multiply.Caption, Arity::Binary, Multiply},
    {Buttons::Divide.Caption, Arity::Binary, Divide},
    {Buttons::Sqrt.Caption, Arity::Unary, SquareRoot},
    {Buttons::Sign.Caption, Arity::Unary, ChangeSign},
    {Buttons::Reciprocal.Caption, Arity::Unary, Reciprocal},
    {Buttons::Percent.Caption, Arity::Unary, Percent},
};

}  // namespace qves::shared
