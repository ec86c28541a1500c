#include "formulas/Percent.h"

#include "formulas/Numbers.h"
#include "model/ArithmeticFault.h"

namespace qves {
namespace {

double PercentOf(Real part, Real total) {
  if (total == 0) throw ArithmeticFault(FaultReason::DivisionByZero, "percent of nothing");
  return Checked(part * 100 / total);
}

}  // namespace

double PercentOfTotal(double first, double second) {
  const Real total = second <= first ? first : second;
  const Real part = second <= first ? second : first;
  return PercentOf(part, total);
}

double PercentDifference(double first, double second) {
  return PercentOf(Real{second} - first, first);
}

double SimpleInterest(double presentValue, double rate, double days, int basis) {
  return Checked(-Real{presentValue} * rate * days / basis);
}

}  // namespace qves
