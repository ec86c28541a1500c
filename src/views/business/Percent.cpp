#include "views/business/Percent.h"

#include "engine/Numbers.h"
#include "engine/Operators.h"

namespace qves {

double PercentOfTotal(double first, double second) {
  return second <= first ? Divide(Multiply(second, 100), first) : Divide(Multiply(first, 100), second);
}

double PercentDifference(double first, double second) {
  return Divide(Multiply(second - first, 100), first);
}

double SimpleInterest(double presentValue, double rate, double days, int basis) {
  return Checked(-presentValue * rate * days / basis);
}

}  // namespace qves
