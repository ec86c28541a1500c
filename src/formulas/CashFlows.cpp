#include "formulas/CashFlows.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <limits>
#include <vector>

#include "formulas/RootSearch.h"
#include "model/ArithmeticFault.h"

namespace qves {
namespace {

constexpr double Negligible = 1e-280;  // beside flows of about 1
constexpr std::size_t Strands = 4;     // of a sum, side by side: the processor need not wait for one

using Sums = std::array<double, Strands>;

/// A polynomial's strands, each by Horner's rule, one step: sums too small to matter are dropped, as the
/// processor is slow with them.
void Step(Sums& sums, double factor, const double* flows) {
  for (std::size_t k = 0; k < Strands; ++k) {
    const double sum = sums[k] * factor + flows[k];
    sums[k] = std::fabs(sum) < Negligible ? 0 : sum;
  }
}

/// The flows' worth today for a rate of 0 and above, and at the end for one below: of one sign, as the one is
/// a positive multiple of the other, and never beyond a double for a rate that is too far off. Their number
/// is a multiple of Strands.
double Worth(double rate, std::span<const double> flows) {
  const bool atEnd = rate < 0;
  const double factor = atEnd ? 1 + rate : 1 / (1 + rate);
  const double step = factor * factor * factor * factor;
  Sums sums{};
  if (atEnd)
    for (std::size_t i = 0; i < flows.size(); i += Strands) Step(sums, step, &flows[i]);
  else
    for (std::size_t i = flows.size(); i > 0; i -= Strands) Step(sums, step, &flows[i - Strands]);
  if (atEnd) std::reverse(sums.begin(), sums.end());
  return sums[0] + factor * (sums[1] + factor * (sums[2] + factor * sums[3]));
}

/// The same in extended precision, a period a step.
Real ExactWorth(Real rate, std::span<const double> flows) {
  const Real growth = 1 + rate;
  Real sum = 0;
  if (rate < 0)
    for (const double flow : flows) sum = sum * growth + flow;
  else
    for (std::size_t i = flows.size(); i-- > 0;) sum = sum / growth + flows[i];
  return sum;
}

/// The flows with the largest of them about 1, and zeros behind them: the rate is the same, and their sums
/// stay within a double.
std::vector<double> Scaled(std::span<const double> flows) {
  int exponent = std::numeric_limits<int>::min();
  for (const double flow : flows)
    if (flow != 0) exponent = std::max(exponent, std::ilogb(flow));
  std::vector<double> scaled;
  for (const double flow : flows) scaled.push_back(std::scalbn(flow, -exponent));
  while (scaled.size() % Strands != 0) scaled.push_back(0);
  return scaled;
}

}  // namespace

double rtcNPV(double rate, double first, std::span<const double> flows) {
  const Real growth = Real{1} + rate;
  if (growth == 0) throw ArithmeticFault(FaultReason::NoSolution, "a rate of -100 %");
  Real sum = 0;
  for (std::size_t i = flows.size(); i-- > 0;) sum = (sum + flows[i]) / growth;
  return Checked(sum + first, FaultReason::TooLarge);
}

Real rtcIRR(std::span<const double> flows) {
  const auto received = [](double flow) { return flow > 0; };
  const auto paid = [](double flow) { return flow < 0; };
  if (std::none_of(flows.begin(), flows.end(), received) || std::none_of(flows.begin(), flows.end(), paid))
    throw ArithmeticFault(FaultReason::NoSolution, "flows of one sign");
  const std::vector<double> scaled = Scaled(flows);
  return NearestRate([&](double rate) { return Worth(rate, scaled); },
                     [&](Real rate) { return ExactWorth(rate, scaled); });
}

}  // namespace qves
