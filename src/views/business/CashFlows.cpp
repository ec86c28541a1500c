#include "views/business/CashFlows.h"

#include <algorithm>

#include "engine/Numbers.h"
#include "engine/Operators.h"
#include "model/ArithmeticFault.h"
#include "views/business/RootSearch.h"

namespace qves {
namespace {

/// The flows' worth today for a rate of 0 and above, and at the end for one below: of one sign, as the one is
/// a positive multiple of the other, and never beyond a double for a rate that is too far off.
double Worth(double rate, std::span<const double> flows) {
  double sum = 0;
  if (rate < 0) {
    for (const double flow : flows) sum = sum * (1 + rate) + flow;
    return sum;
  }
  const double factor = 1 / (1 + rate);
  for (std::size_t i = flows.size(); i-- > 0;) sum = sum * factor + flows[i];
  return sum;
}

}  // namespace

double rtcNPV(double rate, std::span<const double> flows) {
  const double factor = Divide(1, 1 + rate);
  double sum = 0;
  for (std::size_t i = flows.size(); i-- > 0;) sum = (sum + flows[i]) * factor;
  return Checked(sum);
}

double rtcIRR(std::span<const double> flows) {
  const auto received = [](double flow) { return flow > 0; };
  const auto paid = [](double flow) { return flow < 0; };
  if (std::none_of(flows.begin(), flows.end(), received) || std::none_of(flows.begin(), flows.end(), paid))
    throw ArithmeticFault("flows of one sign");
  return NearestRate([&](double rate) { return Worth(rate, flows); });
}

}  // namespace qves
