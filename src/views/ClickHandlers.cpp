#include "views/ClickHandlers.h"

namespace qves {
namespace {

constexpr ClickRow SharedRows[] = {
    {"cmdDigit", Do<EntryEngine, &EntryEngine::Digit>, true},
    {"cmdDecimal", Do<EntryEngine, &EntryEngine::DecimalPoint>, true},
    {"cmdBiOp", Do<EntryEngine, &EntryEngine::BinaryOperator>, true},
    {"cmdMemory", Do<EntryEngine, &EntryEngine::Memory>, true},
    {"cmdCE", Do<EntryEngine, &EntryEngine::ClearEntry>, true},
    {"cmdUOp", Do<EntryEngine, &EntryEngine::UnaryOperator>, false},
    {"cmdEqual", Do<EntryEngine, &EntryEngine::Equals>, false},
    {"cmdBackspace", Do<EntryEngine, &EntryEngine::Backspace>, false},
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
