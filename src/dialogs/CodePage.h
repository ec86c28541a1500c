// The characters of the old code pages.
#pragma once

#include <string>

namespace qves {

/// What each of the 256 bytes stands for in the code page of this name ("CP1251"); in CP1252 when
/// the system knows none of this name. A byte that stands for nothing gives U+FFFD.
std::u32string CharactersOf(const std::string& codePage);

}  // namespace qves
