#include "desktop/KeyTranslation.h"

#include <algorithm>
#include <array>
#include <optional>
#include <span>

#include "model/UsKeyboard.h"

namespace qves {
namespace {

constexpr std::uint32_t EvdevOffset = 8;  // a scan code of X11 and Wayland is the kernel's code and this

struct CodeOf {
  int From;
  int Code;
};

/// A run of keys whose codes follow each other.
struct CodeRange {
  std::uint32_t First;
  std::uint32_t Last;
  int Code;
};

/// Keysyms of the keypad with NumLock on. Separator is the comma of some layouts: it types the point here.
constexpr std::array KeypadKeySyms = {
    CodeRange{0xffb0, 0xffb9, KeyPad0},       CodeRange{0xffaa, 0xffab, KeyPadMultiply},
    CodeRange{0xffac, 0xffac, KeyPadDecimal}, CodeRange{0xffad, 0xffad, KeyPadSubtract},
    CodeRange{0xffae, 0xffaf, KeyPadDecimal}, CodeRange{0xff8d, 0xff8d, KeyEnter},
};

/// Keypad keys of an event without keysym, by the toolkit's key.
constexpr std::array KeypadKeys = {
    CodeOf{Qt::Key_Asterisk, KeyPadMultiply}, CodeOf{Qt::Key_Plus, KeyPadAdd},
    CodeOf{Qt::Key_Minus, KeyPadSubtract},    CodeOf{Qt::Key_Period, KeyPadDecimal},
    CodeOf{Qt::Key_Comma, KeyPadDecimal},     CodeOf{Qt::Key_Slash, KeyPadDivide},
};

/// Keys that type no character, wherever they are; the keypad's navigation keys (NumLock off) are among them.
constexpr std::array NamedKeys = {
    CodeOf{Qt::Key_Backspace, KeyBackspace},
    CodeOf{Qt::Key_Tab, KeyTab},
    CodeOf{Qt::Key_Backtab, KeyTab},
    CodeOf{Qt::Key_Clear, 12},
    CodeOf{Qt::Key_Return, KeyEnter},
    CodeOf{Qt::Key_Enter, KeyEnter},
    CodeOf{Qt::Key_Shift, KeyShift},
    CodeOf{Qt::Key_Control, KeyControl},
    CodeOf{Qt::Key_Alt, KeyAlt},
    CodeOf{Qt::Key_AltGr, KeyAlt},
    CodeOf{Qt::Key_Pause, 19},
    CodeOf{Qt::Key_CapsLock, KeyCapsLock},
    CodeOf{Qt::Key_Escape, KeyEscape},
    CodeOf{Qt::Key_Space, KeySpace},
    CodeOf{Qt::Key_PageUp, KeyPageUp},
    CodeOf{Qt::Key_PageDown, KeyPageDown},
    CodeOf{Qt::Key_End, KeyEnd},
    CodeOf{Qt::Key_Home, KeyHome},
    CodeOf{Qt::Key_Left, KeyLeft},
    CodeOf{Qt::Key_Up, KeyUp},
    CodeOf{Qt::Key_Right, KeyRight},
    CodeOf{Qt::Key_Down, KeyDown},
    CodeOf{Qt::Key_Print, 44},
    CodeOf{Qt::Key_Insert, 45},
    CodeOf{Qt::Key_Delete, KeyDelete},
    CodeOf{Qt::Key_Menu, 93},
    CodeOf{Qt::Key_NumLock, KeyNumLock},
    CodeOf{Qt::Key_ScrollLock, KeyScrollLock},
};

/// A row of positions on the keyboard, from the kernel's code on, with the codes of a US keyboard. But for
/// the letters they count whatever the layout types there.
struct KeyRow {
  std::uint32_t First;
  std::array<int, 13> Codes;
};
constexpr KeyRow KeyRows[] = {
    {2, {'1', '2', '3', '4', '5', '6', '7', '8', '9', '0', KeyMinus, KeyEqual}},
    {16, {'Q', 'W', 'E', 'R', 'T', 'Y', 'U', 'I', 'O', 'P', KeyLeftBracket, KeyRightBracket}},
    {30, {'A', 'S', 'D', 'F', 'G', 'H', 'J', 'K', 'L', KeySemicolon, KeyApostrophe, KeyGrave}},
    {43, {KeyBackslash, 'Z', 'X', 'C', 'V', 'B', 'N', 'M', KeyComma, KeyPeriod, KeySlash}},
    {86, {226}},  // the key beside the left Shift of a European keyboard
};

std::optional<int> FindCode(std::span<const CodeOf> table, int from) {
  const auto found = std::ranges::find(table, from, &CodeOf::From);
  return found == table.end() ? std::nullopt : std::optional(found->Code);
}

std::optional<int> FindCode(std::span<const CodeRange> table, std::uint32_t value) {
  for (const CodeRange& range : table)
    if (value >= range.First && value <= range.Last)
      return range.Code + static_cast<int>(value - range.First);
  return std::nullopt;
}

/// The key of a US keyboard that types the character; null for letters and what it does not have.
const UsKey* FindUsKey(int character) {
  const auto* found = std::ranges::find_if(
      UsKeys, [&](const UsKey& key) { return key.Plain == character || key.Shifted == character; });
  return found == std::end(UsKeys) ? nullptr : found;
}

bool IsLetter(int key) {
  return key >= Qt::Key_A && key <= Qt::Key_Z;
}
bool IsDigit(int key) {
  return key >= Qt::Key_0 && key <= Qt::Key_9;
}

std::optional<int> KeypadCode(const QKeyEvent& key) {
  if (key.nativeVirtualKey() != 0) return FindCode(KeypadKeySyms, key.nativeVirtualKey());
  if (!key.modifiers().testFlag(Qt::KeypadModifier)) return std::nullopt;
  if (IsDigit(key.key())) return KeyPad0 + key.key() - Qt::Key_0;
  return FindCode(KeypadKeys, key.key());
}

std::optional<int> NamedCode(int key) {
  if (key >= Qt::Key_F1 && key <= Qt::Key_F24) return KeyF1 + key - Qt::Key_F1;
  return FindCode(NamedKeys, key);
}

/// 0 where the rows have none.
int UsCodeAt(std::uint32_t evdev) {
  for (const auto& [first, codes] : KeyRows)
    if (evdev >= first && evdev < first + codes.size()) return codes[evdev - first];
  return 0;
}

/// A Latin layout may have punctuation where a US keyboard has a letter (the comma of a French one, the point
/// of a Dvorak one): then the punctuation counts. What it types there with AltGr from the row of digits does
/// not.
std::optional<int> PunctuationCode(int key) {
  const UsKey* us = FindUsKey(key);
  return us && !IsDigit(us->Code) ? std::optional(us->Code) : std::nullopt;
}

/// A French keyboard has its colon and its slash where a US one has the point: they are no point.
bool IsFrenchSlashKey(int key, int shift) {
  return (key == Qt::Key_Colon && shift == NoShift) || key == Qt::Key_Slash;
}

int PositionCode(std::uint32_t evdev, int key, int shift) {
  const int code = UsCodeAt(evdev);
  if (IsLetter(code)) return PunctuationCode(key).value_or(code);
  return code == KeyPeriod && IsFrenchSlashKey(key, shift) ? int{KeySlash} : code;
}

int ShiftOf(Qt::KeyboardModifiers modifiers) {
  return (modifiers.testFlag(Qt::ShiftModifier) ? ShiftBit : NoShift) |
         (modifiers.testFlag(Qt::ControlModifier) ? ControlBit : NoShift) |
         (modifiers.testFlag(Qt::AltModifier) ? AltBit : NoShift);
}

char32_t TypedCharacter(const QString& text) {
  const auto characters = text.toUcs4();
  if (characters.size() != 1) return 0;
  const char32_t typed = characters.front();
  const bool isControl = typed < 0x20 || (typed >= 0x7f && typed < 0xa0);
  return isControl ? 0 : typed;
}

/// A synthesised key tells what is typed and not with which keys: they are those of a US keyboard.
KeyEvent SynthesisedKey(const QKeyEvent& key, int shift, char32_t character) {
  if (IsDigit(key.key())) return {key.key(), shift, character};
  const UsKey* us = FindUsKey(key.key());
  if (!us) return {0, shift, character};
  return {us->Code, us->Shifted == key.key() ? shift | ShiftBit : shift, character};
}

}  // namespace

KeyEvent TranslateKey(const QKeyEvent& key) {
  if (key.modifiers().testFlag(Qt::MetaModifier)) return {};
  int shift = ShiftOf(key.modifiers());
  if (const auto code = KeypadCode(key)) return {*code, shift, 0};

  const char32_t typed = TypedCharacter(key.text());
  const bool isAltGr = typed != 0 && key.modifiers().testFlag(Qt::GroupSwitchModifier);
  const char32_t character = isAltGr || (shift & (ControlBit | AltBit)) == 0 ? typed : 0;
  // What AltGr types counts; the key by itself is one with Control and Alt, so that no digit comes of it.
  if (isAltGr) shift |= ControlBit | AltBit;
  if (const auto code = NamedCode(key.key())) return {*code, shift, character};
  if (IsLetter(key.key())) return {key.key(), shift, character};
  if (key.nativeScanCode() <= EvdevOffset) return SynthesisedKey(key, shift, character);
  return {PositionCode(key.nativeScanCode() - EvdevOffset, key.key(), shift), shift, character};
}

}  // namespace qves
