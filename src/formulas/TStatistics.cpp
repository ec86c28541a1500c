#include "formulas/TStatistics.h"

#include <cmath>

#include "formulas/Numbers.h"

namespace qves {

double TwoSampleT(const Sums& first, const Sums& second) {
  const double m = second.Count;
  const double n = first.Count;
  const double pooled = (second.SS() + first.SS()) / (m + n - 2);
  const double variance = Checked((1 / m + 1 / n) * pooled);
  return variance == 0 ? variance : Checked((first.Mean() - second.Mean()) / std::sqrt(variance));
}

double PairedT(std::span<const double> first, std::span<const double> second) {
  const auto n = static_cast<double>(first.size());
  double sum = 0;
  double sumSq = 0;
  for (std::size_t i = 0; i < first.size(); ++i) {
    const double difference = second[i] - first[i];
    sum += difference;
    sumSq += difference * difference;
  }
  const double w = Checked((n * sumSq - sum * sum) / (n - 1));
  return w == 0 ? w : Checked(sum / std::sqrt(w));
}

}  // namespace qves
