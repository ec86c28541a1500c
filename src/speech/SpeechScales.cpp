#include "speech/SpeechScales.h"

#include <algorithm>
#include <cmath>

namespace qves {
namespace {

constexpr int NormalSpeed = 175;  // words per minute, the middle of the server's scale

}  // namespace

int EspeakRate(int wordsPerMinute) {
  return std::clamp(wordsPerMinute, SlowestSpeed, FastestSpeed);
}

int EspeakVolume(std::int32_t volume) {
  return FromFraction(Fraction(volume, 0, FullVolume), 0, 100);
}

int SpeechdRate(int wordsPerMinute) {
  if (wordsPerMinute < NormalSpeed)
    return FromFraction(Fraction(wordsPerMinute, SlowestSpeed, NormalSpeed), -100, 0);
  return FromFraction(Fraction(wordsPerMinute, NormalSpeed, FastestSpeed), 0, 100);
}

int SpeechdVolume(std::int32_t volume) {
  return FromFraction(Fraction(volume, 0, FullVolume), -100, 100);
}

double Fraction(int value, int minimum, int maximum) {
  return double(std::clamp(value, minimum, maximum) - minimum) / double(maximum - minimum);
}

int FromFraction(double fraction, int minimum, int maximum) {
  return minimum + int(std::lround(fraction * double(maximum - minimum)));
}

}  // namespace qves
