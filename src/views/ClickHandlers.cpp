#include "views/ClickHandlers.h"

namespace qves {
namespace {

constexpr ClickRow SharedRows[] = {
    {"cmdDigit", &EntryEngine::Digit, FocusRule::Moves},
    {"cmdDecimal", &EntryEngine::DecimalPoint, FocusRule::Moves},
    {"cmdBiOp", &EntryEngine::BinaryOperator, FocusRule::Moves},
    {"cmdMemory", &EntryEngine::Memory, FocusRule::Moves},
    {"cmdCE", &EntryEngine::ClearEntry, FocusRule::Moves},
    {"cmdUOp", &EntryEngine::UnaryOperator, FocusRule::Stays},
    {"cmdEqual", &EntryEngine::Equals, FocusRule::Stays},
    {"cmdBackspace", &EntryEngine::Backspace, FocusRule::Stays},
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
