// Characters from the bytes of the old code pages.
#pragma once

namespace qves {

/// The character of a byte in the code page of this number (10000: the Macintosh's); of a code page not
/// known, as in 1252.
char32_t FromCodePage(int codePage, unsigned char byte);

}  // namespace qves
