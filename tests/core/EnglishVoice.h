// The words of a voice that speaks English.
#pragma once

#include "voicing/VoiceWords.h"

namespace qves {

inline const VoiceWords English = {".",
                                   "point",
                                   "point",
                                   " minus ",
                                   "plus",
                                   "minus",
                                   "times",
                                   "divided by",
                                   "equals",
                                   "left paren",
                                   "of",
                                   "about",
                                   "times ten to the",
                                   {{"Sqr", "square root"}},
                                   {{"Apr", "April"}, {"Dec", "December"}}};

}  // namespace qves
