// From the settings' ranges to those of the speech libraries. Values out of range count as the nearest in
// range.
#pragma once

#include <cstdint>

namespace qves {

inline constexpr int SlowestSpeed = 80;   ///< words per minute
inline constexpr int FastestSpeed = 450;  ///< words per minute
inline constexpr std::int32_t FullVolume = 65535;

/// What the calculator asks for when the user has set nothing; a speech server then keeps its own user's
/// defaults.
inline constexpr int UnsetSpeed = 170;
inline constexpr std::int32_t UnsetVolume = FullVolume;

/// Words per minute, 80 to 450.
int EspeakRate(int wordsPerMinute);
/// From 0..65535 to 0..100, the library's full volume without amplification.
int EspeakVolume(std::int32_t volume);
/// From 80..450 words per minute to -100..100, with 175 at 0.
int SpeechdRate(int wordsPerMinute);
/// From 0..65535 to -100..100.
int SpeechdVolume(std::int32_t volume);

/// Where `value` lies between the ends of a range, from 0 to 1.
double Fraction(int value, int minimum, int maximum);
/// The whole number nearest to where `fraction` lies in a range.
int FromFraction(double fraction, int minimum, int maximum);

}  // namespace qves
