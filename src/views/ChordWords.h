// Key presses in words.
#pragma once

#include <string>

#include "model/KeyEvent.h"
#include "services/Services.h"

namespace qves {

/// What the key press is called: the modifiers that are held and the key's name, "Control Shift F8". Letters
/// and digits are named by their keys, another sign by what the key types, without the Shift or AltGr that it
/// needs: "Shift 2", "plus". "" for a key that has no name.
std::string ChordInWords(const KeyEvent& event, const Services& services);

}  // namespace qves
