// What kind of character one of ASCII is, whatever the language of the desktop.
#pragma once

namespace qves {

constexpr bool IsDigit(char c) {
  return c >= '0' && c <= '9';
}

constexpr bool IsLetter(char c) {
  return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z');
}

/// A digit, a letter or a byte of a character beyond ASCII.
constexpr bool IsWordCharacter(char c) {
  return IsDigit(c) || IsLetter(c) || (c & 0x80) != 0;
}

}  // namespace qves
