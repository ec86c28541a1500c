// The words that a voice is given in place of signs, and how numbers are read.
#pragma once

#include <string>
#include <utility>
#include <vector>

namespace qves {

/// How the whole part of a number is read.
enum class NumberReading {
  AsHost,   ///< as the host product's user has set: natural, or digit by digit
  Natural,  ///< as a number
  Digits,   ///< digit by digit
  Pairs,    ///< in twos from the right
  Triples,  ///< in threes from the right
  Voice,    ///< the whole text is left to the voice as it is
};

/// All decimals of a number are read.
inline constexpr int AllDecimals = 0;

/// All of these are messages.
struct VoiceWords {
  std::string Separator;      ///< the decimal separator of number texts
  std::string Point;          ///< what is spoken in its place
  std::string HeardPoint;     ///< what is heard in its place
  std::string SpokenMinus;    ///< what is spoken in place of a number's "-", with its blanks
  std::string Plus;           ///< of "+" between blanks
  std::string Minus;          ///< of "-" between blanks, and before a number
  std::string Times;          ///< of "*" between blanks
  std::string DividedBy;      ///< of "/" between blanks
  std::string Equals;         ///< of "="
  std::string LeftParen;      ///< of "(" in a value
  std::string Of;             ///< between a function and its operand
  std::string About;          ///< before a rounded number
  std::string TimesTenToThe;  ///< before an exponent
  std::vector<std::pair<std::string, std::string>>
      Functions;                                            ///< as a tape line writes them, as they are said
  std::vector<std::pair<std::string, std::string>> Months;  ///< abbreviated, in full

  /// False when a message file lacks one of the words that are heard only; texts are then voiced as they are.
  bool Complete() const { return !Equals.empty() && !Of.empty() && !About.empty() && !TimesTenToThe.empty(); }
};

struct VoicingRules {
  const VoiceWords& Words;
  NumberReading Reading = NumberReading::Natural;
  int Decimals = AllDecimals;  ///< more than so many are rounded to so many
  bool DigitsApart = false;    ///< the spoken text has a blank between any two digits of a number
};

}  // namespace qves
