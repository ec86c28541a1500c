// How the lines of the Scientific view's calculations show its operators with one operand. The random number
// stands alone, and so does the changed sign.
#pragma once

#include "model/Join.h"
#include "views/LineShapes.h"
#include "views/scientific/ScientificButtons.h"

namespace qves::scientific {

inline constexpr std::string_view InverseMark = "Inv ";
inline constexpr std::string_view HyperbolicMark = "Hyp ";
inline constexpr std::string_view PowerSign = "^";

inline constexpr auto LineShapes = Join(shared::LineShapes, std::to_array<LineShape>({
                                                                {Buttons::Sin.Caption, "sin(", ") = "},
                                                                {Buttons::Cos.Caption, "cos(", ") = "},
                                                                {Buttons::Tan.Caption, "tan(", ") = "},
                                                                {Buttons::Not.Caption, "Not(", ") = "},
                                                                {Buttons::Int.Caption, "Int(", ") = "},
                                                                {Buttons::Ln.Caption, "ln(", ") = "},
                                                                {Buttons::Log.Caption, "log(", ") = "},
                                                                {Buttons::Factorial.Caption, "", "! = "},
                                                                {Buttons::Square.Caption, "", "^2 = "},
                                                                {Buttons::Cube.Caption, "", "^3 = "},
                                                                {Buttons::ExpOfX.Caption, "e^", " = "},
                                                            }));

}  // namespace qves::scientific
