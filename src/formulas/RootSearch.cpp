#include "formulas/RootSearch.h"

#include <algorithm>
#include <cmath>
#include <optional>

#include "model/ArithmeticFault.h"

namespace qves {
namespace {

constexpr double Guess = 0.1;
constexpr double FirstStep = 1e-4;
constexpr double StepShare = 0.15;  ///< of the distance from the guess, that a step goes
constexpr double HighestRate = 1e9;
constexpr double LowestRate = -1 + 1e-9;
constexpr double LossShare = 0.25;  ///< of 1 + rate, that a step towards -1 goes at the most
constexpr double TinyRate = 1e-9;
constexpr double TinyShare = 0.3;  ///< of the rate itself, that a step close to 0 goes at the most
constexpr int DipHalvings = 80;
constexpr Real SlopeStep = 0x1p-30L;       ///< of 1 + rate
constexpr Real LargestCorrection = 1e-6L;  ///< of 1 + rate; a larger one would lead to another root
constexpr double ExcessTolerance = 0.00001;
constexpr int MostHalvings = 200;

using Function = std::function<double(double)>;

struct Point {
  double Rate;
  double Value;
};

bool ChangesSign(const Point& a, const Point& b) {
  return a.Value != 0 && b.Value != 0 && std::signbit(a.Value) != std::signbit(b.Value);
}

/// The root between two points of different signs, by halving until no double lies between.
double RootBetween(const Function& value, Point near, Point far) {
  for (;;) {
    // A rate of 0 is tried itself: halving would only come ever closer to it.
    const double middle = near.Rate * far.Rate < 0 ? 0 : near.Rate + (far.Rate - near.Rate) / 2;
    if (middle == near.Rate || middle == far.Rate) return middle;
    const Point point = {middle, value(middle)};
    if (point.Value == 0) return middle;
    (ChangesSign(point, near) ? far : near) = point;
  }
}

/// Three points of one sign, the one in the middle closest to 0: looks between the outer ones for a point of
/// the other sign, by golden section. Two roots that lie closer together than a step are found this way.
std::optional<Point> FindDip(const Function& value, double from, double to, const Point& seen) {
  const double golden = (std::sqrt(5.0) - 1) / 2;
  const auto at = [&](double share) {
    const double rate = from + (to - from) * share;
    return Point{rate, value(rate)};
  };
  Point left = at(1 - golden), right = at(golden);
  for (int i = 0; i < DipHalvings && from != to; ++i) {
    for (const Point& point : {left, right})
      if (point.Value == 0 || ChangesSign(point, seen)) return point;
    if (std::fabs(left.Value) < std::fabs(right.Value)) {
      to = right.Rate;
      right = left;
      left = at(1 - golden);
    } else {
      from = left.Rate;
      left = right;
      right = at(golden);
    }
  }
  return std::nullopt;
}

/// One side of the guess, walked outward step by step.
class Walk {
 public:
  Walk(const Function& value, double sign, double valueAtGuess)
      : Value(value), Sign(sign), Here{Guess, valueAtGuess}, Seen(Here), Before(Here) {}

  bool AtEnd() const { return Here.Rate >= HighestRate || Here.Rate <= LowestRate; }
  /// How far the next step goes from the guess.
  double Reach() const { return std::fabs(Next() - Guess); }

  /// Goes one step; gives the root that was passed, if any. A 0 alone is no root: far out it may only be too
  /// small for a double.
  std::optional<double> Step() {
    const double next = Next();
    Here = {next, Value(next)};
    if (ChangesSign(Seen, Here)) return RootBetween(Value, Seen, Here);
    const bool isDip =
        std::fabs(Seen.Value) < std::fabs(Before.Value) && std::fabs(Seen.Value) < std::fabs(Here.Value);
    if (isDip)
      if (const auto dip = FindDip(Value, Before.Rate, Here.Rate, Seen))
        return dip->Value == 0 ? dip->Rate : RootBetween(Value, Before, *dip);
    if (Here.Value != 0) {
      Before = Seen;
      Seen = Here;
    }
    return std::nullopt;
  }

 private:
  double Next() const {
    const double step = std::max(FirstStep, std::fabs(Here.Rate - Guess) * StepShare);
    if (Sign > 0) return Here.Rate + step;
    if (Here.Rate == 0) return -TinyRate;
    // Rates close to 0 are walked by their own size: over many periods they differ much.
    const double next = Here.Rate - std::min({step, std::fabs(Here.Rate) * TinyShare + TinyRate,
                                              (1 + Here.Rate) * LossShare});
    if (Here.Rate > 0 && next < TinyRate) return 0;
    return std::max(next, LowestRate);
  }

  const Function& Value;
  double Sign;
  Point Here;
  Point Seen;    ///< the last point whose value was not 0
  Point Before;  ///< the one before it
};

/// The rate nearest to 0.1, searched outward on both sides, to the digits that `value` has.
double Search(const Function& value) {
  const double atGuess = value(Guess);
  // A 0 with nothing but 0 beside it is only too small for a double.
  if (atGuess == 0 && (value(Guess + FirstStep) != 0 || value(Guess - FirstStep) != 0)) return Guess;
  Walk up(value, 1, atGuess);
  Walk down(value, -1, atGuess);
  while (!up.AtEnd() || !down.AtEnd()) {
    Walk& next = up.AtEnd() || (!down.AtEnd() && down.Reach() <= up.Reach()) ? down : up;
    if (const auto root = next.Step()) return *root;
  }
  throw ArithmeticFault(FaultReason::NoSolution, "no rate of return");
}

}  // namespace

/// By Newton's rule: each step doubles the right digits at least.
Real NearestRate(const Function& value, const std::function<Real(Real)>& exact) {
  Real rate = Search(value);
  const Real growth = 1 + rate;
  const Real step = growth * SlopeStep;
  const Real slope = (exact(rate + step) - exact(rate - step)) / (2 * step);
  for (int count = 0; count < 2; ++count) {
    const Real start = 1 + rate - 1;  // so that 1 + start is not rounded
    const Real correction = exact(start) / slope;
    if (!(std::fabs(correction) < LargestCorrection * growth)) break;
    rate = start - correction;
  }
  return rate;
}

double Halve(const Function& excess, double high) {
  double low = 0;
  double middle = high * 0.5;
  for (int count = 1; count <= MostHalvings; ++count) {
    const double atMiddle = excess(middle);
    if (std::fabs(atMiddle) < ExcessTolerance) break;
    (atMiddle > 0 ? low : high) = middle;
    middle = (low + high) * 0.5;
  }
  return middle;
}

}  // namespace qves
