#include <gtest/gtest.h>

#include "desktop/KeyTranslation.h"

namespace qves {
namespace {

constexpr auto Plain = Qt::NoModifier;
constexpr auto Shift = Qt::ShiftModifier;
constexpr auto Ctrl = Qt::ControlModifier;
constexpr auto Alt = Qt::AltModifier;
constexpr auto Meta = Qt::MetaModifier;
constexpr auto Keypad = Qt::KeypadModifier;
constexpr auto AltGr = Qt::GroupSwitchModifier;

/// What the toolkit tells of a key.
struct Pressed {
  quint32 ScanCode;
  quint32 KeySym;
  int Key;
  Qt::KeyboardModifiers Modifiers;
  const char* Text;
};

struct Row {
  const char* What;
  Pressed Key;
  KeyEvent Expected;
};

void Check(std::initializer_list<Row> rows) {
  for (const Row& row : rows) {
    const auto& [scanCode, keySym, key, modifiers, text] = row.Key;
    const KeyEvent event = TranslateKey(
        QKeyEvent(QEvent::KeyPress, key, modifiers, scanCode, keySym, 0, QString::fromUtf8(text)));
    EXPECT_EQ(event.Code, row.Expected.Code) << row.What;
    EXPECT_EQ(event.Shift, row.Expected.Shift) << row.What;
    EXPECT_EQ(event.Character, row.Expected.Character) << row.What;
  }
}

// Scan codes are the kernel's + 8, as an X server gives them.

TEST(KeyTranslation, UsLayout) {
  Check({
      {"7", {16, '7', Qt::Key_7, Plain, "7"}, {'7', NoShift, '7'}},
      {"@", {11, '@', Qt::Key_At, Shift, "@"}, {'2', ShiftBit, '@'}},
      {"%", {14, '%', Qt::Key_Percent, Shift, "%"}, {'5', ShiftBit, '%'}},
      {"*", {17, '*', Qt::Key_Asterisk, Shift, "*"}, {'8', ShiftBit, '*'}},
      {"+", {21, '+', Qt::Key_Plus, Shift, "+"}, {KeyEqual, ShiftBit, '+'}},
      {"=", {21, '=', Qt::Key_Equal, Plain, "="}, {KeyEqual, NoShift, '='}},
      {"-", {20, '-', Qt::Key_Minus, Plain, "-"}, {KeyMinus, NoShift, '-'}},
      {".", {60, '.', Qt::Key_Period, Plain, "."}, {KeyPeriod, NoShift, '.'}},
      {"/", {61, '/', Qt::Key_Slash, Plain, "/"}, {KeySlash, NoShift, '/'}},
      {"m", {58, 'm', Qt::Key_M, Plain, "m"}, {'M', NoShift, 'm'}},
      {"Ctrl+M", {58, 'm', Qt::Key_M, Ctrl, "\r"}, {'M', ControlBit, 0}},
      {"Ctrl+C", {54, 'c', Qt::Key_C, Ctrl, "\x03"}, {'C', ControlBit, 0}},
      {"Alt+R", {27, 'r', Qt::Key_R, Alt, "r"}, {'R', AltBit, 0}},
      {"Super+M is the desktop's", {58, 'm', Qt::Key_M, Meta, "m"}, {0, NoShift, 0}},
  });
}

TEST(KeyTranslation, NamedKeys) {
  Check({
      {"Backspace", {22, 0xff08, Qt::Key_Backspace, Plain, "\b"}, {KeyBackspace, NoShift, 0}},
      {"Tab", {23, 0xff09, Qt::Key_Tab, Plain, "\t"}, {KeyTab, NoShift, 0}},
      {"Shift+Tab", {23, 0xfe20, Qt::Key_Backtab, Shift, ""}, {KeyTab, ShiftBit, 0}},
      {"Enter", {36, 0xff0d, Qt::Key_Return, Plain, "\r"}, {KeyEnter, NoShift, 0}},
      {"Escape", {9, 0xff1b, Qt::Key_Escape, Plain, "\x1b"}, {KeyEscape, NoShift, 0}},
      {"Space", {65, ' ', Qt::Key_Space, Plain, " "}, {KeySpace, NoShift, ' '}},
      {"Delete", {119, 0xffff, Qt::Key_Delete, Plain, "\x7f"}, {KeyDelete, NoShift, 0}},
      {"Shift+F2", {68, 0xffbf, Qt::Key_F2, Shift, ""}, {KeyF2, ShiftBit, 0}},
      {"F12", {96, 0xffc9, Qt::Key_F12, Plain, ""}, {KeyF12, NoShift, 0}},
      {"Ctrl", {37, 0xffe3, Qt::Key_Control, Plain, ""}, {KeyControl, ControlBit, 0}},
      {"Scroll Lock", {78, 0xff14, Qt::Key_ScrollLock, Plain, ""}, {KeyScrollLock, NoShift, 0}},
      {"unknown", {180, 0x1008ff18, Qt::Key_HomePage, Plain, ""}, {0, NoShift, 0}},
  });
}

TEST(KeyTranslation, KeypadHasCodesAndNoCharacters) {
  Check({
      {"7", {79, 0xffb7, Qt::Key_7, Keypad, "7"}, {KeyPad0 + 7, NoShift, 0}},
      {"7 without the modifier", {79, 0xffb7, Qt::Key_7, Plain, "7"}, {KeyPad0 + 7, NoShift, 0}},
      {"*", {63, 0xffaa, Qt::Key_Asterisk, Keypad, "*"}, {KeyPadMultiply, NoShift, 0}},
      {"+", {86, 0xffab, Qt::Key_Plus, Keypad, "+"}, {KeyPadAdd, NoShift, 0}},
      {"-", {82, 0xffad, Qt::Key_Minus, Keypad, "-"}, {KeyPadSubtract, NoShift, 0}},
      {"point", {91, 0xffae, Qt::Key_Period, Keypad, "."}, {KeyPadDecimal, NoShift, 0}},
      {"German comma", {91, 0xffac, Qt::Key_Comma, Keypad, ","}, {KeyPadDecimal, NoShift, 0}},
      {"/", {106, 0xffaf, Qt::Key_Slash, Keypad, "/"}, {KeyPadDivide, NoShift, 0}},
      {"Enter", {104, 0xff8d, Qt::Key_Enter, Keypad, "\r"}, {KeyEnter, NoShift, 0}},
      {"NumLock off: Home", {79, 0xff95, Qt::Key_Home, Keypad, ""}, {KeyHome, NoShift, 0}},
      {"NumLock off: Down", {88, 0xff99, Qt::Key_Down, Keypad, ""}, {KeyDown, NoShift, 0}},
      {"NumLock off: Delete", {91, 0xff9f, Qt::Key_Delete, Keypad, "\x7f"}, {KeyDelete, NoShift, 0}},
  });
}

TEST(KeyTranslation, FrenchLayoutKeepsThePositionsOfTheDigits) {
  Check({
      {"top row 7", {16, 0xe8, Qt::Key_Egrave, Plain, "è"}, {'7', NoShift, U'è'}},
      {"Shift and top row 2", {11, '2', Qt::Key_2, Shift, "2"}, {'2', ShiftBit, '2'}},
      {"+", {21, '+', Qt::Key_Plus, Shift, "+"}, {KeyEqual, ShiftBit, '+'}},
      {"* (US backslash)", {51, '*', Qt::Key_Asterisk, Plain, "*"}, {KeyBackslash, NoShift, '*'}},
      {"m (US semicolon)", {47, 'm', Qt::Key_M, Plain, "m"}, {'M', NoShift, 'm'}},
      {"a (US q)", {24, 'a', Qt::Key_A, Plain, "a"}, {'A', NoShift, 'a'}},
      {"comma on the US m is no M", {58, ',', Qt::Key_Comma, Plain, ","}, {KeyComma, NoShift, ','}},
      {"dead circumflex", {34, 0xfe52, Qt::Key_Dead_Circumflex, Plain, ""}, {KeyLeftBracket, NoShift, 0}},
      {"AltGr+à types @ and no digit", {19, '@', Qt::Key_At, AltGr, "@"}, {'0', ControlBit | AltBit, '@'}},
      {": (US point)", {60, ':', Qt::Key_Colon, Plain, ":"}, {KeySlash, NoShift, ':'}},
      {"/ (Shift and the US point)", {60, '/', Qt::Key_Slash, Shift, "/"}, {KeySlash, ShiftBit, '/'}},
      {". (Shift and the US comma)", {59, '.', Qt::Key_Period, Shift, "."}, {KeyComma, ShiftBit, '.'}},
  });
}

TEST(KeyTranslation, GermanLayout) {
  Check({
      {"+ (US right bracket)", {35, '+', Qt::Key_Plus, Plain, "+"}, {KeyRightBracket, NoShift, '+'}},
      {"/ on 7", {16, '/', Qt::Key_Slash, Shift, "/"}, {'7', ShiftBit, '/'}},
      {"= on 0", {19, '=', Qt::Key_Equal, Shift, "="}, {'0', ShiftBit, '='}},
      {"- (US slash)", {61, '-', Qt::Key_Minus, Plain, "-"}, {KeySlash, NoShift, '-'}},
      {"z (US y)", {29, 'z', Qt::Key_Z, Plain, "z"}, {'Z', NoShift, 'z'}},
      {"AltGr+Q types @ and is no digit", {24, '@', Qt::Key_At, Plain, "@"}, {'Q', NoShift, '@'}},
      {"AltGr told as a group, with Ctrl and Alt",
       {24, '@', Qt::Key_At, AltGr | Ctrl | Alt, "@"},
       {'Q', ControlBit | AltBit, '@'}},
      {"Shift+. stays the point's key", {60, ':', Qt::Key_Colon, Shift, ":"}, {KeyPeriod, ShiftBit, ':'}},
      {"<", {94, '<', Qt::Key_Less, Plain, "<"}, {226, NoShift, '<'}},
  });
}

TEST(KeyTranslation, RussianLettersCountByPosition) {
  Check({
      {"М (US v)", {55, 0x6cd, 0x41c, Plain, "м"}, {'V', NoShift, U'м'}},
      {"Ь (US m)", {58, 0x6d8, 0x42c, Plain, "ь"}, {'M', NoShift, U'ь'}},
      {"Ctrl, Latin key given", {58, 0x6d8, Qt::Key_M, Ctrl, "\r"}, {'M', ControlBit, 0}},
      {"Ctrl, Cyrillic key given", {58, 0x6d8, 0x42c, Ctrl, ""}, {'M', ControlBit, 0}},
      {"7", {16, '7', Qt::Key_7, Plain, "7"}, {'7', NoShift, '7'}},
      {"point on the US slash", {61, '.', Qt::Key_Period, Plain, "."}, {KeySlash, NoShift, '.'}},
      {"ю on the US point", {60, 0x6c0, 0x42e, Plain, "ю"}, {KeyPeriod, NoShift, U'ю'}},
  });
}

TEST(KeyTranslation, DvorakLettersAndPunctuationCountByWhatTheyType) {
  Check({
      {"m (US m)", {58, 'm', Qt::Key_M, Plain, "m"}, {'M', NoShift, 'm'}},
      {"r (US o)", {32, 'r', Qt::Key_R, Plain, "r"}, {'R', NoShift, 'r'}},
      {"point (US e)", {26, '.', Qt::Key_Period, Plain, "."}, {KeyPeriod, NoShift, '.'}},
      {"w (US comma)", {59, 'w', Qt::Key_W, Plain, "w"}, {'W', NoShift, 'w'}},
      {"- (US apostrophe)", {48, '-', Qt::Key_Minus, Plain, "-"}, {KeyApostrophe, NoShift, '-'}},
  });
}

TEST(KeyTranslation, SynthesisedKeysAreThoseOfAUsKeyboard) {
  Check({
      {"7", {0, 0, Qt::Key_7, Plain, "7"}, {'7', NoShift, '7'}},
      {"@ alone implies Shift, else it were a 2", {0, 0, Qt::Key_At, Plain, "@"}, {'2', ShiftBit, '@'}},
      {"+ with Shift", {0, 0, Qt::Key_Plus, Shift, "+"}, {KeyEqual, ShiftBit, '+'}},
      {".", {0, 0, Qt::Key_Period, Plain, "."}, {KeyPeriod, NoShift, '.'}},
      {"keypad 3", {0, 0, Qt::Key_3, Keypad, "3"}, {KeyPad0 + 3, NoShift, 0}},
      {"keypad +", {0, 0, Qt::Key_Plus, Keypad, "+"}, {KeyPadAdd, NoShift, 0}},
      {"Ctrl+P", {0, 0, Qt::Key_P, Ctrl, ""}, {'P', ControlBit, 0}},
      {"è", {0, 0, Qt::Key_Egrave, Plain, "è"}, {0, NoShift, U'è'}},
  });
}

}  // namespace
}  // namespace qves
