// Characters from UTF-8 and to it.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace qves {

/// True for a byte that goes on a character that began before it.
constexpr bool IsInsideCharacter(char byte) {
  return (static_cast<unsigned char>(byte) & 0xC0U) == 0x80U;
}

/// Of C0 and C1, and DEL.
constexpr bool IsControl(char32_t code) {
  return code < 0x20 || (code >= 0x7F && code < 0xA0);
}

/// True for what can be a character: no surrogate and not beyond the last plane.
constexpr bool IsCharacter(char32_t code) {
  return code < 0xD800 || (code > 0xDFFF && code <= 0x10FFFF);
}

struct Utf8Character {
  char32_t Code = 0;
  std::size_t Length = 0;  ///< in bytes
};

/// The character at the start of a text, of length 0 when no well-formed one (no surrogate, no overlong form)
/// is there.
Utf8Character FirstCharacter(std::string_view bytes);

/// True when the bytes are well-formed UTF-8.
bool IsUtf8(std::string_view bytes);

/// The character, which is no surrogate, in UTF-8.
std::string Utf8(char32_t code);

}  // namespace qves
