#include "views/ClickHandlers.h"

namespace qves {
namespace {

constexpr ClickRow SharedRows[] = {
    {"cmdDigit", Do<EntryEngine, &EntryEngine::Digit>, FocusRule::Moves},
    {"cmdDecimal", Do<EntryEngine, &EntryEngine::DecimalPoint>, FocusRule::Moves},
    {"cmdBiOp", Do<EntryEngine, &EntryEngine::BinaryOperator>, FocusRule::Moves},
    {"cmdMemory", Do<EntryEngine, &EntryEngine::Memory>, FocusRule::Moves},
    {"cmdCE", Do<EntryEngine, &EntryEngine::ClearEntry>, FocusRule::Moves},
    {"cmdUOp", Do<EntryEngine, &EntryEngine::UnaryOperator>, FocusRule::Stays},
    {"cmdEqual", Do<EntryEngine, &EntryEngine::Equals>, FocusRule::Stays},
    {"cmdBackspace", Do<EntryEngine, &EntryEngine::Backspace>, FocusRule::Stays},
};

const ClickRow* Find(std::span<const ClickRow> rows, std::string_view array) {
  for (const ClickRow& row : rows)
    if (row.Array == array) return &row;
  return nullptr;
}

}  // namespace

const ClickRow* FindClickRow(std::span<const ClickRow> ofTheView, std::string_view array) {
  const ClickRow* own = Find(ofTheView, array);
  return own ? own : Find(SharedRows, array);
}

}  // namespace qves
