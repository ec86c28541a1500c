// The operators of the Scientific view. An operator with an inverse function clears the inverse box when it
// has used it; all others leave the box as it is, although the box's help says otherwise: this is wanted.
// "sin", "cos" and "tan" stand in Trigonometry; "F-E" and "Exp" change the entry itself, and "Rnd" takes the
// next random number (ScientificEngine).
#pragma once

#include "engine/Operators.h"
#include "formulas/Arithmetic.h"
#include "formulas/BitOperations.h"
#include "formulas/ScientificFunctions.h"

namespace qves::scientific {

// caption, operands, function, inverse function
inline constexpr OperatorRow Operators[] = {
    {"+", Arity::Binary, Add},
    {"-", Arity::Binary, Subtract},
    {"*", Arity::Binary, Multiply},
    {"/", Arity::Binary, Divide},
    {"+/-", Arity::Unary, ChangeSign},
    {"1/x", Arity::Unary, Reciprocal},
    {"And", Arity::Binary, BitAnd},
    {"Or", Arity::Binary, BitOr},
    {"Xor", Arity::Binary, BitXor},
    {"Not", Arity::Unary, BitNot},
    {"Mod", Arity::Binary, Modulo},
    {"n!", Arity::Unary, Factorial},
    {"sqrt", Arity::Unary, SquareRoot, Square},
    {"x^2", Arity::Unary, Square, SquareRoot},
    {"x^y", Arity::Binary, Power, Root},
    {"x^3", Arity::Unary, Cube, CubeRoot},
    {"ln", Arity::Unary, NaturalLog, Exponential},
    {"e^x", Arity::Unary, Exponential, NaturalLog},
    {"log", Arity::Unary, CommonLog, PowerOfTen},
    {"Lsh", Arity::Binary, ShiftLeft, ShiftRight},
    {"Int", Arity::Unary, WholePart, FractionalPart},
};

}  // namespace qves::scientific
