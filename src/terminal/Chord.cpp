#include "terminal/Chord.h"

#include "model/UsKeyboard.h"
#include "text/Integers.h"

namespace qves {
namespace {

struct NamedKey {
  std::string_view Name;
  int Code;
  int Shift = NoShift;  ///< what the key itself adds
};

constexpr NamedKey NamedKeys[] = {
    {"Enter", KeyEnter},
    {"Escape", KeyEscape},
    {"Tab", KeyTab},
    {"Space", KeySpace},
    {"Backspace", KeyBackspace},
    {"Delete", KeyDelete},
    {"Insert", KeyInsert},
    {"Home", KeyHome},
    {"End", KeyEnd},
    {"PageUp", KeyPageUp},
    {"PageDown", KeyPageDown},
    {"Left", KeyLeft},
    {"Right", KeyRight},
    {"Up", KeyUp},
    {"Down", KeyDown},
    {"Shift", KeyShift, ShiftBit},
    {"Ctrl", KeyControl, ControlBit},
    {"Alt", KeyAlt, AltBit},
    {"CapsLock", KeyCapsLock},
    {"NumLock", KeyNumLock},
    {"ScrollLock", KeyScrollLock},
    {"KP_Decimal", KeyPadDecimal},
    {"KP_Multiply", KeyPadMultiply},
    {"KP_Divide", KeyPadDivide},
    {"KP_Subtract", KeyPadSubtract},
    {"KP_Add", KeyPadAdd},
    {"KP_Enter", KeyEnter},
};

struct Modifier {
  std::string_view Prefix;
  int Bit;
};

constexpr Modifier Modifiers[] = {{"Ctrl+", ControlBit}, {"Shift+", ShiftBit}, {"Alt+", AltBit}};

/// Takes the modifiers off the chord's front. What is left is never empty unless the chord was.
int TakeModifiers(std::string_view& chord) {
  int shift = NoShift;
  for (bool found = true; found;) {
    found = false;
    for (const Modifier& modifier : Modifiers) {
      if (!chord.starts_with(modifier.Prefix) || chord.size() == modifier.Prefix.size()) continue;
      chord.remove_prefix(modifier.Prefix.size());
      shift |= modifier.Bit;
      found = true;
    }
  }
  return shift;
}

/// The number behind a prefix, as in "F12" or "KP_7"; -1 when it is not that.
int NumberAfter(std::string_view prefix, std::string_view name, int lowest, int highest) {
  if (!name.starts_with(prefix)) return -1;
  name.remove_prefix(prefix.size());
  const int number = ParseInteger(name).value_or(-1);
  const bool plain = !name.starts_with('0') || name == "0";
  return plain && number >= lowest && number <= highest ? number : -1;
}

std::optional<KeyEvent> NamedKeyEvent(std::string_view name) {
  for (const NamedKey& key : NamedKeys)
    if (key.Name == name) return KeyEvent{key.Code, key.Shift, 0};
  if (const int f = NumberAfter("F", name, 1, 12); f > 0) return KeyEvent{KeyF1 + f - 1, NoShift, 0};
  if (const int digit = NumberAfter("KP_", name, 0, 9); digit >= 0)
    return KeyEvent{KeyPad0 + digit, NoShift, 0};
  return std::nullopt;
}

/// The key that types the character, with the Shift it needs.
std::optional<KeyEvent> CharacterKey(char c) {
  if (c >= 'a' && c <= 'z') return KeyEvent{c - 'a' + 'A', NoShift, 0};
  if (c >= 'A' && c <= 'Z') return KeyEvent{c, ShiftBit, 0};
  if (c == ' ') return KeyEvent{KeySpace, NoShift, 0};
  for (const UsKey& key : UsKeys) {
    if (key.Plain == c) return KeyEvent{key.Code, NoShift, 0};
    if (key.Shifted == c) return KeyEvent{key.Code, ShiftBit, 0};
  }
  return std::nullopt;
}

/// The character that the key types with that shift state; 0 for none.
char32_t TypedCharacter(const KeyEvent& event) {
  if ((event.Shift & (ControlBit | AltBit)) != 0) return 0;
  const bool shifted = (event.Shift & ShiftBit) != 0;
  if (event.Code >= 'A' && event.Code <= 'Z')
    return static_cast<char32_t>(shifted ? event.Code : event.Code + 32);
  if (event.Code == KeySpace) return U' ';
  for (const UsKey& key : UsKeys)
    if (key.Code == event.Code) return static_cast<char32_t>(shifted ? key.Shifted : key.Plain);
  return 0;
}

}  // namespace

std::optional<KeyEvent> ParseChord(std::string_view chord) {
  const int shift = TakeModifiers(chord);
  auto event = chord.size() == 1 ? CharacterKey(chord.front()) : NamedKeyEvent(chord);
  if (!event) return std::nullopt;
  event->Shift |= shift;
  event->Character = TypedCharacter(*event);
  return event;
}

}  // namespace qves
