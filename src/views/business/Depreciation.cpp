#include "views/business/Depreciation.h"

#include <algorithm>
#include <cmath>

#include "engine/Numbers.h"
#include "engine/Operators.h"
#include "model/ArithmeticFault.h"

namespace qves {
namespace {

void CheckYear(double life, double year) {
  if (!(life > 0)) throw ArithmeticFault("a life that is not above 0");
  if (!(year >= 1 && year <= life)) throw ArithmeticFault("a year outside the life");
}

}  // namespace

double rtcSLN(double cost, double salvage, double life) {
  if (!(life > 0)) throw ArithmeticFault("a life that is not above 0");
  return Divide(cost - salvage, life);
}

double rtcSYD(double cost, double salvage, double life, double year) {
  CheckYear(life, year);
  return Divide((cost - salvage) * (life - year + 1) * 2, life * (life + 1));
}

double rtcDDB(double cost, double salvage, double life, double year, double factor) {
  CheckYear(life, year);
  if (!(factor > 0)) throw ArithmeticFault("a factor that is not above 0");
  const double kept = 1 - std::min(1.0, factor / life);  // the share of the value that a year leaves
  const double before = cost * std::pow(kept, year - 1);
  const double after = std::max(cost * std::pow(kept, year), salvage);
  return std::max(0.0, Checked(before - after));
}

}  // namespace qves
