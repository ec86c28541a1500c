// The words of a voice that speaks English.
#pragma once

#include "voicing/VoiceWords.h"

namespace qves {

inline const VoiceWords English = {.Separator = ".",
                                   .Point = "point",
                                   .HeardPoint = "point",
                                   .SpokenMinus = " minus ",
                                   .Plus = "plus",
                                   .Minus = "minus",
                                   .Times = "times",
                                   .DividedBy = "divided by",
                                   .Equals = "equals",
                                   .LeftParen = "left paren",
                                   .Of = "of",
                                   .About = "about",
                                   .TimesTenToThe = "times ten to the",
                                   .Functions = {{"Sqr", "square root"}},
                                   .Months = {{"Apr", "April"}, {"Dec", "December"}}};

}  // namespace qves
