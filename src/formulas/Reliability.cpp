#include "formulas/Reliability.h"

#include <cmath>

#include "formulas/Numbers.h"

namespace qves {

double KR20(std::span<const double> rightAnswers, double examinees, double scoreVariance) {
  double sum = 0;
  for (const double right : rightAnswers) {
    const double p = right / examinees;
    sum += p * (1 - p);
  }
  const auto items = static_cast<double>(rightAnswers.size());
  return Checked((1 - sum / scoreVariance) * items / (items - 1));
}

double KR21(double items, double scoreMean, double scoreVariance) {
  return Checked((1 - (items - scoreMean) * scoreMean / (items * scoreVariance)) * items / (items - 1));
}

double StandardErrorOfMeasurement(double scoreSD, double reliability) {
  return Checked(scoreSD * std::sqrt(1 - reliability));
}

}  // namespace qves
