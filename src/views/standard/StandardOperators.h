// The operators of the Standard view, and how the tape shows them.
#pragma once

#include "engine/Operators.h"
#include "formulas/Arithmetic.h"

namespace qves::standard {

// caption, operands, function
inline constexpr OperatorRow Operators[] = {
    {"+", Arity::Binary, Add},         {"-", Arity::Binary, Subtract},     {"*", Arity::Binary, Multiply},
    {"/", Arity::Binary, Divide},      {"sqrt", Arity::Unary, SquareRoot}, {"+/-", Arity::Unary, ChangeSign},
    {"1/x", Arity::Unary, Reciprocal}, {"%", Arity::Unary, Percent},
};

/// The tape line of a unary operator: the operand between two texts. One that is not listed puts the result
/// alone on its line.
struct TapeShape {
  std::string_view Caption;
  std::string_view Lead;
  std::string_view Tail;
};

inline constexpr TapeShape TapeShapes[] = {
    {"sqrt", "Sqr(", ") = "},
    {"1/x", "1 / ", " = "},
};

}  // namespace qves::standard
