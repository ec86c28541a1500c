// The operators of the Scientific view. An operator with an inverse function clears the inverse box when it
// has used it; all others leave the box as it is, although the box's help says otherwise: this is wanted.
// "sin", "cos" and "tan" stand in Trigonometry; the notation and the exponent key change the entry itself,
// and the random key takes the next random number (ScientificEngine).
#pragma once

#include "engine/Operators.h"
#include "formulas/Arithmetic.h"
#include "formulas/BitOperations.h"
#include "formulas/ScientificFunctions.h"
#include "views/scientific/ScientificButtons.h"

namespace qves::scientific {

// caption, operands, function, inverse function
inline constexpr OperatorRow Operators[] = {
    {Buttons::Add.Caption, Arity::Binary, Add},
    {Buttons::Subtract.Caption, Arity::Binary, Subtract},
    {Buttons::Multiply.Caption, Arity::Binary, Multiply},
    {Buttons::Divide.Caption, Arity::Binary, Divide},
    {Buttons::Sign.Caption, Arity::Unary, ChangeSign},
    {Buttons::Reciprocal.Caption, Arity::Unary, Reciprocal},
    {Buttons::And.Caption, Arity::Binary, BitAnd},
    {Buttons::Or.Caption, Arity::Binary, BitOr},
    {Buttons::Xor.Caption, Arity::Binary, BitXor},
    {Buttons::Not.Caption, Arity::Unary, BitNot},
    {Buttons::Mod.Caption, Arity::Binary, Modulo},
    {Buttons::Factorial.Caption, Arity::Unary, Factorial},
    {Buttons::Sqrt.Caption, Arity::Unary, SquareRoot, Square},
    {Buttons::Square.Caption, Arity::Unary, Square, SquareRoot},
    {Buttons::Power.Caption, Arity::Binary, Power, Root},
    {Buttons::Cube.Caption, Arity::Unary, Cube, CubeRoot},
    {Buttons::Ln.Caption, Arity::Unary, NaturalLog, Exponential},
    {Buttons::ExpOfX.Caption, Arity::Unary, Exponential, NaturalLog},
    {Buttons::Log.Caption, Arity::Unary, CommonLog, PowerOfTen},
    {Buttons::Lsh.Caption, Arity::Binary, ShiftLeft, ShiftRight},
    {Buttons::Int.Caption, Arity::Unary, WholePart, FractionalPart},
};

}  // namespace qves::scientific
