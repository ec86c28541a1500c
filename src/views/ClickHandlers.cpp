#include "views/ClickHandlers.h"

namespace qves {
namespace {

constexpr ClickRow ClickTable[] = {
    {"cmdDigit", &EntryEngine::Digit, true},         {"cmdDecimal", &EntryEngine::DecimalPoint, true},
    {"cmdBiOp", &EntryEngine::BinaryOperator, true}, {"cmdMemory", &EntryEngine::Memory, true},
    {"cmdCE", &EntryEngine::ClearEntry, true},       {"cmdUOp", &EntryEngine::UnaryOperator, false},
    {"cmdEqual", &EntryEngine::Equals, false},       {"cmdBackspace", &EntryEngine::Backspace, false},
};

}  // namespace

const ClickRow* FindClickRow(std::string_view array) {
  for (const ClickRow& row : ClickTable)
    if (row.Array == array) return &row;
  return nullptr;
}

}  // namespace qves
