// What a click of each control array does.
#pragma once

#include <span>
#include <string_view>

#include "engine/EntryEngine.h"

namespace qves {

/// Whether the focus follows the key to the control.
enum class FocusRule {
  Stays,
  Moves,
  MovesSilently,  ///< the key itself says what the control would
};

using KeyOperation = void (EntryEngine::*)(const PressedKey&);

struct ClickRow {
  std::string_view Array;
  KeyOperation Operation;
  FocusRule Focus;
};

/// An operation that only the view's own engine has. The cast is not for a constant expression.
template <class Engine>
KeyOperation Own(void (Engine::*operation)(const PressedKey&)) noexcept {
  return static_cast<KeyOperation>(operation);
}

/// The row of that control or array, of those that the view has alone or of those that all views share; null
/// when it has none.
const ClickRow* FindClickRow(std::span<const ClickRow> ofTheView, std::string_view array);

}  // namespace qves
