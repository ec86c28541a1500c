#include "views/business/RootSearch.h"

#include <cmath>
#include <optional>

#include "model/ArithmeticFault.h"

namespace qves {
namespace {

constexpr double Guess = 0.1;
constexpr double FirstStep = 1e-4;
constexpr double StepGrowth = 1.1;
constexpr double HighestRate = 1e9;
constexpr double LowestRate = -1 + 1e-9;
constexpr double CloseToTotalLoss = 0.9;  ///< below a rate of 0, how far 1 + rate goes down in a step

using Function = std::function<double(double)>;

/// One side of the guess, walked outward step by step.
class Walk {
 public:
  Walk(const Function& value, double sign, double valueAtGuess)
      : Value(value), Sign(sign), ValueBefore(valueAtGuess), ValueHere(valueAtGuess) {}

  bool AtEnd() const { return Here >= HighestRate || Here <= LowestRate; }
  /// How far the next step goes from the guess.
  double Reach() const { return std::fabs(Next() - Guess); }
  /// Goes one step; true when the function has changed its sign since it was last not 0. A 0 alone is no
  /// change: far out it is only too small for a double.
  bool Step() {
    if (ValueHere != 0) {
      Before = Here;
      ValueBefore = ValueHere;
    }
    Here = Next();
    Distance *= StepGrowth;
    ValueHere = Value(Here);
    return ValueHere != 0 && std::signbit(ValueHere) != std::signbit(ValueBefore);
  }
  /// The root in the last step, by halving until no double lies between.
  double Root() const {
    double near = Before, far = Here;
    const bool farSign = std::signbit(ValueHere);
    for (;;) {
      // A rate of 0 is tried itself: halving would only come ever closer to it.
      const double middle = near * far < 0 ? 0 : near + (far - near) / 2;
      if (middle == near || middle == far) return middle;
      const double value = Value(middle);
      if (value == 0) return middle;
      (std::signbit(value) == farSign ? far : near) = middle;
    }
  }

 private:
  double Next() const {
    const double plain = Guess + Sign * Distance;
    if (Sign > 0 || Here > 0.0) return plain;
    return std::max(LowestRate, std::max(plain, (1 + Here) * CloseToTotalLoss - 1));
  }

  const Function& Value;
  double Sign;
  double Distance = FirstStep;
  double Before = Guess;
  double Here = Guess;
  double ValueBefore;
  double ValueHere;
};

}  // namespace

double NearestRate(const Function& value) {
  const double atGuess = value(Guess);
  if (atGuess == 0) return Guess;
  Walk up(value, 1, atGuess);
  Walk down(value, -1, atGuess);
  while (!up.AtEnd() || !down.AtEnd()) {
    Walk& next = up.AtEnd() || (!down.AtEnd() && down.Reach() <= up.Reach()) ? down : up;
    if (next.Step()) return next.Root();
  }
  throw ArithmeticFault("no rate of return");
}

}  // namespace qves
