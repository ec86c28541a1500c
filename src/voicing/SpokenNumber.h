// A number within a spoken text, and how it is said.
#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

#include "voicing/VoiceWords.h"

namespace qves {

struct SpokenNumber {
  bool Negative = false;
  std::string Whole;     ///< digits
  std::string Fraction;  ///< digits; "" for none
  bool ExponentNegative = false;
  std::string Exponent;    ///< digits; "" for none
  std::size_t Length = 0;  ///< in bytes of the text
};

/// The number that begins at that byte of the text; nothing when none does. A number is
/// [-]digits[point digits][E[+|-]digits]. The minus is "-" at the start of the text or after a blank, "(",
/// "=" or a line end, or the words spoken in its place.
std::optional<SpokenNumber> FindNumber(std::string_view text, std::size_t at, const VoicingRules& rules);

/// The words of a number: "minus 2 point 2 3 6, 0 6 7, 9 times ten to the 20".
std::string NumberInWords(SpokenNumber number, const VoicingRules& rules);

/// A date as a number, month point day and year: "4 point 0 7, 2 0 0 4".
std::string DateNumberInWords(const SpokenNumber& number, const VoicingRules& rules);

/// Digits and letters of a number base, each by itself, in groups of four from the right: "D E A, D, B E E
/// F". After an A there is a pause, as a voice would take it for the article.
std::string BaseDigitsInWords(std::string_view digits);

}  // namespace qves
