#include "formulas/Descriptive.h"

#include <algorithm>
#include <cmath>

#include "formulas/Arithmetic.h"
#include "formulas/Numbers.h"

namespace qves {

double Sums::Mean() const {
  return Divide(Sum, Count);
}

double Sums::SS() const {
  return Checked(SumSq - Sum * Sum / Count);
}

Sums SumUp(std::span<const double> values) {
  Sums sums;
  for (const double x : values) {
    sums.Sum += x;
    sums.SumSq += x * x;
  }
  sums.Count = static_cast<double>(values.size());
  Checked(sums.Sum);
  Checked(sums.SumSq);
  return sums;
}

Dispersion DispersionOf(double ss, double divisor) {
  const double variance = Divide(ss, divisor);
  return {variance, std::sqrt(std::abs(variance))};
}

double Median(std::span<const double> sorted) {
  if (sorted.empty()) return Divide(0, 0);
  const std::size_t half = sorted.size() / 2;
  return sorted.size() % 2 == 1 ? sorted[half] : Checked((sorted[half - 1] + sorted[half]) / 2);
}

std::vector<double> Modes(std::span<const double> sorted) {
  std::vector<double> modes;
  std::size_t most = 1;
  for (std::size_t start = 0, end = 0; start < sorted.size(); start = end) {
    while (end < sorted.size() && sorted[end] == sorted[start]) ++end;
    const std::size_t count = end - start;
    if (count > most) modes.clear();
    if (count > most || (count == most && count > 1)) modes.push_back(sorted[start]);
    most = std::max(most, count);
  }
  return modes;
}

}  // namespace qves
