// From the settings' ranges to those of the speech libraries. Values out of range count as the nearest in
// range.
#pragma once

#include <cstdint>

namespace qves {

/// What the calculator asks for when the user has set nothing; a speech server then keeps its own user's
/// defaults.
inline constexpr int UnsetSpeed = 170;
inline constexpr std::int32_t UnsetVolume = 65535;

/// The voice's back end may not be known yet, so all have one range, from 0, which is fine enough for each.
inline constexpr int HighestPitch = 1000;

/// Words per minute, 80 to 450.
int EspeakRate(int wordsPerMinute);
/// From 0..65535 to 0..100, the library's full volume without amplification.
int EspeakVolume(std::int32_t volume);
/// From 0..HighestPitch to 0..100.
int EspeakPitch(int pitch);
/// From 80..450 words per minute to -100..100, with 175 at 0.
int SpeechdRate(int wordsPerMinute);
/// From 0..65535 to -100..100.
int SpeechdVolume(std::int32_t volume);
/// From 0..HighestPitch to -100..100.
int SpeechdPitch(int pitch);

}  // namespace qves
