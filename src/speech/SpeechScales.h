// From the settings' ranges to those of the speech libraries. Values out of range count as the nearest in
// range.
#pragma once

#include <algorithm>
#include <cstdint>

namespace qves {

/// What the calculator asks for when the user has set nothing; a speech server then keeps its own user's
/// defaults.
inline constexpr int UnsetSpeed = 170;
inline constexpr std::int32_t UnsetVolume = 65535;

struct Scale {
  int From;
  int To;
};

inline constexpr Scale SpeedScale = {80, 450};  ///< words per minute
inline constexpr Scale VolumeScale = {0, 65535};
inline constexpr int NormalSpeed = 175;  ///< the middle of speech-dispatcher's scale
/// The voice's back end may not be known yet, so all have one range, from 0, which is fine enough for each.
inline constexpr Scale PitchScale = {0, 1000};

/// The value's place on another scale, rounded. Both go upwards.
constexpr int Scaled(int value, Scale scale, Scale wanted) {
  const double part =
      double(std::clamp(value, scale.From, scale.To) - scale.From) / double(scale.To - scale.From);
  return wanted.From + int(part * double(wanted.To - wanted.From) + 0.5);
}

/// From words per minute to -100..100.
constexpr int SpeechdRate(int wordsPerMinute) {
  if (wordsPerMinute < NormalSpeed) return Scaled(wordsPerMinute, {SpeedScale.From, NormalSpeed}, {-100, 0});
  return Scaled(wordsPerMinute, {NormalSpeed, SpeedScale.To}, {0, 100});
}

}  // namespace qves
