// One key press as the calculator sees it, whatever toolkit it came from.
#pragma once

namespace qves {

/// The bits of a key event's shift state.
enum ShiftState : int { NoShift = 0, ShiftBit = 1, ControlBit = 2, AltBit = 4 };

/// Key codes that have no printable character, and the keypad's. Letters and digits are their upper-case
/// ASCII.
enum KeyCode : int {
  KeyBackspace = 8,
  KeyTab = 9,
  KeyEnter = 13,
  KeyShift = 16,
  KeyControl = 17,
  KeyAlt = 18,
  KeyCapsLock = 20,
  KeyEscape = 27,
  KeySpace = 32,
  KeyPageUp = 33,
  KeyPageDown = 34,
  KeyEnd = 35,
  KeyHome = 36,
  KeyLeft = 37,
  KeyUp = 38,
  KeyRight = 39,
  KeyDown = 40,
  KeyInsert = 45,
  KeyDelete = 46,
  KeyPad0 = 96,
  KeyPad9 = 105,
  KeyPadMultiply = 106,
  KeyPadAdd = 107,
  KeyPadSubtract = 109,
  KeyPadDecimal = 110,
  KeyPadDivide = 111,
  KeyF1 = 112,
  KeyF2 = 113,
  KeyF3 = 114,
  KeyF4 = 115,
  KeyF5 = 116,
  KeyF6 = 117,
  KeyF7 = 118,
  KeyF8 = 119,
  KeyF9 = 120,
  KeyF10 = 121,
  KeyF12 = 123,
  KeyNumLock = 144,
  KeyScrollLock = 145,
  KeySemicolon = 186,
  KeyEqual = 187,
  KeyComma = 188,
  KeyMinus = 189,
  KeyPeriod = 190,
  KeySlash = 191,
  KeyGrave = 192,
  KeyLeftBracket = 219,
  KeyBackslash = 220,
  KeyRightBracket = 221,
  KeyApostrophe = 222,
};

/// A key press or release.
struct KeyEvent {
  int Code = 0;            ///< key code, see KeyCode
  int Shift = NoShift;     ///< bit set of ShiftState
  char32_t Character = 0;  ///< the character the key types on the current layout; 0 for none, for the keypad,
                           ///< and while Control or Alt is held
  bool Held = false;       ///< a repetition of a key that is held down
};

/// Keys that are held with others.
constexpr bool IsModifier(int code) {
  return code == KeyShift || code == KeyControl || code == KeyAlt;
}

/// With Alt a key belongs to the menus and the desktop, unless AltGr makes it type a character.
constexpr bool BelongsToDesktop(const KeyEvent& event) {
  return (event.Shift & AltBit) != 0 && event.Character == 0 && event.Code != KeyAlt;
}

}  // namespace qves
