#include "formulas/Depreciation.h"

#include <algorithm>

#include "formulas/Growth.h"
#include "formulas/Numbers.h"
#include "model/ArithmeticFault.h"

namespace qves {
namespace {

void CheckYear(double life, double year) {
  if (!(life > 0)) throw ArithmeticFault(FaultReason::OutOfRange, "a life that is not above 0");
  if (!(year >= 1 && year <= life)) throw ArithmeticFault(FaultReason::OutOfRange, "a year outside the life");
}

}  // namespace

double rtcSLN(double cost, double salvage, double life) {
  if (!(life > 0)) throw ArithmeticFault(FaultReason::OutOfRange, "a life that is not above 0");
  return Checked((Real{cost} - salvage) / life);
}

double rtcSYD(double cost, double salvage, double life, double year) {
  CheckYear(life, year);
  const Real years = life;
  return Checked((Real{cost} - salvage) * (years - year + 1) * 2 / (years * (years + 1)));
}

double rtcDDB(double cost, double salvage, double life, double year, double factor) {
  CheckYear(life, year);
  if (!(factor > 0)) throw ArithmeticFault(FaultReason::OutOfRange, "a factor that is not above 0");
  const Real share = std::min(Real{1}, factor / Real{life});  // of the value, that a year takes
  const Real before = cost * Growth(-share, Real{year} - 1);
  return Checked(std::max(Real{0}, std::min(before * share, before - salvage)));
}

}  // namespace qves
