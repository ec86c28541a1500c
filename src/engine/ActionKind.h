// The kind of the last key, as the engine remembers it.
#pragma once

#include <string_view>

namespace qves {

enum class ActionKind {
  None,
  Num,
  Decimal,
  Backspace,
  Ce,
  Biop,
  Uop,
  Equal,
  Memory,
  LParen,
  RParen,
  Rcl,
  Sto,
  Cal,
  Fin,
  Ex
};

/// The word of an action: "num", "biop", ...; "" for None.
constexpr std::string_view ToWord(ActionKind action) {
  constexpr std::string_view words[] = {"",    "num",   "decimal", "backspace", "CE",     "biop",
                                        "uop", "equal", "memory",  "lparen",    "rparen", "rcl",
                                        "sto", "cal",   "fin",     "ex"};
  return words[static_cast<int>(action)];
}

}  // namespace qves
