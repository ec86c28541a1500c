// Characters from the bytes of the old code pages, and to and from UTF-8.
#pragma once

#include <string>
#include <string_view>

namespace qves {

/// The character of a byte in the code page of this number (10000: the Macintosh's); of a code page not
/// known, as in 1252.
char32_t FromCodePage(int codePage, unsigned char byte);

/// Takes the first character off a valid UTF-8 text that is not empty.
char32_t TakeUtf8(std::string_view& text);

/// The character, which is no surrogate, in UTF-8.
std::string Utf8(char32_t code);

}  // namespace qves
