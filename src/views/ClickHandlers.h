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

struct ClickRow {
  std::string_view Array;
  void (*Operation)(EntryEngine&, const PressedKey&);
  FocusRule Focus;
};

/// A click operation out of an operation of the view's own engine.
template <class Engine, void (Engine::*Operation)(const PressedKey&)>
void Do(EntryEngine& engine, const PressedKey& key) {
  (static_cast<Engine&>(engine).*Operation)(key);
}

/// The row of that control or array, of those that the view has alone or of those that all views share; null
/// when it has none.
const ClickRow* FindClickRow(std::span<const ClickRow> ofTheView, std::string_view array);

}  // namespace qves
