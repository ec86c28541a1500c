// A view's key map as a table: the first row that matches a key press decides.
#pragma once

#include <span>
#include <string_view>

#include "model/Control.h"
#include "model/KeyEvent.h"

namespace qves {

/// Which shift states a row takes; None, Shift and Control compare the whole state.
enum class ShiftRule { Any, None, Shift, Control };

enum class KeyAction {
  Click,         ///< press the control, as a mouse click would
  Focus,         ///< move the focus to the control
  RepeatSpeech,  ///< say again what was said last
  LeaveIt,       ///< not the view's: left to the focused control
};

struct KeyRow {
  int FirstCode = 0;  ///< key codes of the row, inclusive; 0 for none
  int LastCode = 0;
  ShiftRule Shift = ShiftRule::Any;  ///< for the key codes
  char32_t Character = 0;            ///< or else: the character that the key types on the current layout
  KeyAction Action = KeyAction::LeaveIt;
  std::string_view Control = {};  ///< the control to click or to focus
  int Index = NoIndex;            ///< in its array; with IndexFromCode what is added to the key code
  bool IndexFromCode = false;
};

/// The first row that the event matches; null when none does.
const KeyRow* FindKeyRow(std::span<const KeyRow> rows, const KeyEvent& event);

}  // namespace qves
