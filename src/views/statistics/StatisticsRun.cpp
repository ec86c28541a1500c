#include "views/statistics/StatisticsRun.h"

#include <algorithm>

#include "formulas/Numbers.h"
#include "formulas/Reliability.h"
#include "formulas/TStatistics.h"
#include "model/ArithmeticFault.h"

namespace qves {
namespace {

std::vector<double> ToNumbers(std::span<const std::string> items) {
  std::vector<double> numbers;
  numbers.reserve(items.size());
  for (const std::string& item : items) numbers.push_back(TextToNumber(item));
  return numbers;
}

std::vector<double> UsedPoints(std::vector<double> numbers, bool ignoreZero) {
  if (ignoreZero) std::erase(numbers, 0.0);
  return numbers;
}

void Describe(StatisticsResult& result) {
  result.Main = SumUp(result.Values);
  result.Main.Mean();  // faults when there is no point
  std::vector<double> sorted = result.Values;
  std::ranges::sort(sorted);
  result.Median = Median(sorted);
  result.Max = sorted.back();
  result.Min = sorted.front();
  result.Range = Checked(result.Max - result.Min);
  result.Modes = Modes(sorted);
  if (result.Values.size() == 1) return;
  result.Sample = DispersionOf(result.Main.SS(), result.Main.Count - 1);
  result.Population = DispersionOf(result.Main.SS(), result.Main.Count);
}

/// `rightAnswers` are all items of the second list, also those of 0.
void RateReliability(StatisticsResult& result, std::span<const double> rightAnswers) {
  const Dispersion& scores = *result.Sample;
  const double kr20 = KR20(rightAnswers, result.Main.Count, scores.Variance);
  if (kr20 > 1) return;
  const auto items = static_cast<double>(rightAnswers.size());
  const double kr21 = KR21(items, result.Main.Mean(), scores.Variance);
  const ReliabilityResult figures{kr20, kr21, StandardErrorOfMeasurement(scores.SD, kr20)};
  // A second list of which one point at most is used shows none of them; their faults count all the same.
  if (result.Values2.size() >= 2) result.Reliability = figures;
}

double CriticalValue(const StatisticsInput& input, Spreadsheet& spreadsheet) {
  const auto t = spreadsheet.TInv(input.Alpha, input.DegreesOfFreedom);
  if (!t) throw ArithmeticFault(FaultReason::NoSolution, "the inverse t has no value");
  return *t;
}

}  // namespace

StatisticsResult RunStatistics(const StatisticsInput& input, Spreadsheet& spreadsheet) {
  StatisticsResult result;
  result.Values = UsedPoints(ToNumbers(input.Items), input.IgnoreZero);
  Describe(result);
  const std::vector<double> rightAnswers = ToNumbers(input.Items2);
  result.Values2 = UsedPoints(rightAnswers, input.IgnoreZero);
  if (input.DegreesOfFreedom > 0 && input.Alpha > 0 && input.Alpha < 1)
    result.Critical = {input.DegreesOfFreedom, input.Alpha, 0};
  if (result.Values.size() == result.Values2.size()) result.PairedT = 0;
  if (!result.Sample || rightAnswers.size() < 2) return result;

  RateReliability(result, rightAnswers);
  const Sums second = SumUp(result.Values2);  // faults also where it is not used: wanted
  if (result.Values2.size() < 2) return result;
  result.TwoSampleT = TwoSampleT(result.Main, second);
  if (result.PairedT) result.PairedT = PairedT(result.Values, result.Values2);
  if (result.Critical) result.Critical->T = CriticalValue(input, spreadsheet);
  return result;
}

}  // namespace qves
