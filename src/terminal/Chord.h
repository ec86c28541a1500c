// Key chords as text: "7", "*", "Ctrl+m", "Shift+F2".
#pragma once

#include <optional>
#include <string_view>

#include "model/KeyEvent.h"

namespace qves {

/// The key press that the chord names, on a US layout: one printable character or a named key, with "Ctrl+",
/// "Shift+" and "Alt+" before it in any order. Nothing when it is no chord.
std::optional<KeyEvent> ParseChord(std::string_view chord);

}  // namespace qves
