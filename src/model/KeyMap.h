// A view's key map as a table: the first row that matches a key press decides.
#pragma once

#include <functional>
#include <span>
#include <string_view>

#include "model/Control.h"
#include "model/KeyEvent.h"

namespace qves {

/// Which shift states a row takes, none of them with Alt. All but Any compare the whole state; NotControl
/// takes every state but that one.
enum class ShiftRule { Any, None, Shift, Control, NotControl };

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
  bool WhileEnabled = false;  ///< the row counts only while its control is enabled
};

/// The index, in its array, of the control that the row means for that key.
int IndexFor(const KeyRow& row, const KeyEvent& event);

/// The first row that the event matches and that counts at the moment; null when none does.
const KeyRow* FindKeyRow(std::span<const KeyRow> rows, const KeyEvent& event,
                         const std::function<bool(const KeyRow&)>& counts);

}  // namespace qves
