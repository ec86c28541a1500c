#include "formulas/Percent.h"

#include "formulas/Numbers.h"

namespace qves {

double PercentOfTotal(double first, double second) {
  const Real total = second <= first ? first : second;
  const Real part = second <= first ? second : first;
  return Checked(part * 100 / total);
}

double PercentDifference(double first, double second) {
  return Checked((Real{second} - first) * 100 / first);
}

double SimpleInterest(double presentValue, double rate, double days, int basis) {
  return Checked(-Real{presentValue} * rate * days / basis);
}

}  // namespace qves
