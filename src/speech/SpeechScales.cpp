#include "speech/SpeechScales.h"

#include <algorithm>
#include <cmath>

namespace qves {
namespace {

constexpr int SlowestSpeed = 80;
constexpr int NormalSpeed = 175;  // the middle of the server's scale
constexpr int FastestSpeed = 450;
constexpr int FullVolume = 65535;

struct Range {
  int From;
  int To;
};

int Scaled(int value, Range range, Range wanted) {
  const double fraction =
      double(std::clamp(value, range.From, range.To) - range.From) / double(range.To - range.From);
  return wanted.From + int(std::lround(fraction * double(wanted.To - wanted.From)));
}

}  // namespace

int EspeakRate(int wordsPerMinute) {
  return std::clamp(wordsPerMinute, SlowestSpeed, FastestSpeed);
}

int EspeakVolume(std::int32_t volume) {
  return Scaled(volume, {0, FullVolume}, {0, 100});
}

int EspeakPitch(int pitch) {
  return Scaled(pitch, {0, HighestPitch}, {0, 100});
}

int SpeechdRate(int wordsPerMinute) {
  if (wordsPerMinute < NormalSpeed) return Scaled(wordsPerMinute, {SlowestSpeed, NormalSpeed}, {-100, 0});
  return Scaled(wordsPerMinute, {NormalSpeed, FastestSpeed}, {0, 100});
}

int SpeechdVolume(std::int32_t volume) {
  return Scaled(volume, {0, FullVolume}, {-100, 100});
}

int SpeechdPitch(int pitch) {
  return Scaled(pitch, {0, HighestPitch}, {-100, 100});
}

}  // namespace qves
