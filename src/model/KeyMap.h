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

bool Allows(ShiftRule rule, int shift);

enum class KeyAction {
  Click,         ///< press the control, as a mouse click would
  Focus,         ///< move the focus to the control
  RepeatSpeech,  ///< say again what was said last
  LeaveIt,       ///< not the view's: left to the focused control
};

/// Which control a row means: by its own name, or as a member of an array.
struct ControlName {
  constexpr ControlName() = default;
  constexpr ControlName(const char* name) : Name(name) {}
  constexpr ControlName(std::string_view name) : Name(name) {}
  constexpr ControlName(const ControlSpec& control) : Name(control.Name), Index(control.Index) {}

  std::string_view Name = {};
  int Index = NoIndex;
};

struct KeyRow {
  int FirstCode = 0;  ///< key codes of the row, inclusive; 0 for none
  int LastCode = 0;
  ShiftRule Shift = ShiftRule::Any;  ///< for the key codes
  char32_t Character = 0;            ///< or else: the character that the key types on the current layout
  KeyAction Action = KeyAction::LeaveIt;
  ControlName Target = {};    ///< the control to click or to focus, or its array
  int CodeOfIndex0 = 0;       ///< of an array: the key code that means its member 0; 0 for no array
  bool WhileEnabled = false;  ///< the row counts only while its control is enabled
};

/// The index, in its array, of the control that the row means for that key code.
constexpr int IndexFor(const KeyRow& row, int keyCode) {
  return row.CodeOfIndex0 == 0 ? row.Target.Index : keyCode - row.CodeOfIndex0;
}

/// Whether every control that the rows click or focus stands in the table.
consteval bool AllStandIn(std::span<const ControlSpec> controls, std::span<const KeyRow> rows) {
  const auto stands = [&](std::string_view name, int index) {
    for (const ControlSpec& control : controls)
      if (control.Name == name && control.Index == index) return true;
    return name.empty();
  };
  for (const KeyRow& row : rows)
    for (int code = row.FirstCode; code <= row.LastCode; ++code)
      if (!stands(row.Target.Name, IndexFor(row, code))) return false;
  return true;
}

/// The first row that the event matches and that counts at the moment; null when none does.
const KeyRow* FindKeyRow(std::span<const KeyRow> rows, const KeyEvent& event,
                         const std::function<bool(const KeyRow&)>& counts);

}  // namespace qves
