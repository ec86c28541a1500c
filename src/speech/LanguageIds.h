// Languages: from the tags of voices and the desktop's locale to the numbers that the settings use.
#pragma once

#include <string>
#include <string_view>

namespace qves {

/// What a language without a number of its own has: a search for a language never matches it.
inline constexpr int UnknownLanguageId = 127;

/// The primary language id of a language tag: "en", "en-GB" and "en_GB" give 9. Upper and lower case are
/// alike.
int LanguageIdOf(std::string_view tag);

/// "en" of "en-GB", in lower case.
std::string PrimaryTag(std::string_view tag);

/// The language tag of a locale's name, in lower case: "de_AT.UTF-8" gives "de-at"; "", "C" and "POSIX" give
/// "en".
std::string TagOfLocale(std::string_view locale);

/// The language tag of the desktop user's messages, from the environment.
std::string DesktopLanguage();

}  // namespace qves
