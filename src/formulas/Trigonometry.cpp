#include "formulas/Trigonometry.h"

#include <cmath>

#include "formulas/Numbers.h"
#include "model/ArithmeticFault.h"

namespace qves {
namespace {

constexpr double SnapDistance = 1e-15;

double ArcSine(double x) {
  // The angle is 3 pi / 2 here, not -pi / 2: this is wanted.
  if (x == -1) return 3 * Pi / 2;
  return std::asin(x);
}

struct TrigRow {
  std::string_view Op;
  double (*Plain)(double radians);
  double (*Inverse)(double x);  ///< in radians
  double (*Hyperbolic)(double x);
  double (*InverseHyperbolic)(double x);
};

// Wrapped, as functions of the standard library have no address that one may take.
constexpr TrigRow TrigTable[] = {
    {"sin", [](double x) { return std::sin(x); }, ArcSine, [](double x) { return std::sinh(x); },
     [](double x) { return std::asinh(x); }},
    {"cos", [](double x) { return std::cos(x); }, [](double x) { return std::acos(x); },
     [](double x) { return std::cosh(x); }, [](double x) { return std::acosh(x); }},
    {"tan", [](double x) { return std::tan(x); }, [](double x) { return std::atan(x); },
     [](double x) { return std::tanh(x); }, [](double x) { return std::atanh(x); }},
};

const TrigRow* Find(std::string_view op) {
  for (const TrigRow& row : TrigTable)
    if (row.Op == op) return &row;
  return nullptr;
}

/// Outside its domain a function gives no number or an infinity, which is a fault.
double Compute(const TrigRow& row, double x, const TrigModes& modes) {
  if (modes.Hyperbolic && modes.Inverse) return Checked(row.InverseHyperbolic(x), FaultReason::NotDefined);
  if (modes.Hyperbolic) return Checked(row.Hyperbolic(x));
  if (modes.Inverse) return FromRadians(Checked(row.Inverse(x)), modes.Unit);
  return row.Plain(ToRadians(x, modes.Unit));
}

/// Degrees or grads in half a turn; 0 for radians.
double HalfTurn(int unit) {
  constexpr double halfTurns[] = {180, 0, 200};
  return halfTurns[unit];
}

}  // namespace

double ToRadians(double angle, int unit) {
  return unit == Radians ? angle : Checked(Pi * angle) / HalfTurn(unit);
}

double FromRadians(double radians, int unit) {
  return unit == Radians ? radians : radians * HalfTurn(unit) / Pi;
}

bool IsTrigFunction(std::string_view op) {
  return Find(op) != nullptr;
}

double TrigFunction(std::string_view op, double x, const TrigModes& modes) {
  const TrigRow* row = Find(op);
  if (!row) throw ArithmeticFault(FaultReason::NotANumber, "no such function");
  const double result = Compute(*row, x, modes);
  const double whole = std::trunc(result);
  return Checked(std::fabs(result - whole) < SnapDistance ? whole : result);
}

}  // namespace qves
