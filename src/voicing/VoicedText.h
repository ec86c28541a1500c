// From the text that is spoken to the text that a voice is given: numbers, signs and dates in words that no
// voice mistakes. Pure functions; nothing else in the house changes what a voice hears.
#pragma once

#include <span>
#include <string>
#include <string_view>

#include "text/MarkedText.h"
#include "voicing/VoiceWords.h"

namespace qves {

/// What a value in a spoken text is. Who speaks it says so: nobody guesses it from the letters. Where it is
/// no plain number, the numbers of the whole text are never rounded.
enum class ValueKind {
  Number,
  BaseDigits,  ///< numbers of a number base other than decimal, and words between them
  DateNumber,  ///< month point day and year; several of them, and words between them
  DateText,    ///< weekday, month, day and year
  Characters,  ///< no value: the text is spelled, and every character of it heard by itself
  Prose,       ///< no value: the numbers of a help or a document are never rounded
};

/// Where in a text a value stands, in bytes.
struct ValueSpan {
  std::size_t Start = 0;
  std::size_t Length = 0;
  ValueKind Kind = ValueKind::Number;
};

/// A text to be spoken, and where a value stands in it.
struct Wording {
  std::string Text;
  ValueSpan Value = {};
};

inline constexpr ValueSpan Spelling = {0, 0, ValueKind::Characters};
inline constexpr ValueSpan Prose = {0, 0, ValueKind::Prose};

/// The text for the voice. The marks, in the order of their places, move with what they stand before.
MarkedText MakeVoiced(std::string_view spoken, const VoicingRules& rules, ValueSpan value = {},
                      std::span<const BookMark> marks = {});

}  // namespace qves
