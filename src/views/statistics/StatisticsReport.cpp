#include "views/statistics/StatisticsReport.h"

#include <span>
#include <string_view>
#include <utility>
#include <vector>

#include "formulas/Numbers.h"

namespace qves {
namespace {

enum Label {
  DataListLabel = 1412,
  HeadingLabel = 1416,
  CountLabel,
  SumLabel,
  MeanLabel,
  MedianLabel,
  MaxLabel,
  MinLabel,
  RangeLabel,
  SampleVarianceLabel,
  SampleSDLabel,
  PopulationVarianceLabel,
  PopulationSDLabel,
  ModeLabel,
  NoModeLabel,
  KR20Label = 1436,
  KR21Label,
  SEMLabel,
  TwoSampleTLabel,
  PairedTLabel,
  DegreesOfFreedomLabel,
  AlphaLabel,
  CriticalTLabel = 1445,
};

constexpr std::string_view LineEnd = "\r\n";

class ReportWriter {
 public:
  explicit ReportWriter(const MessageStore& messages) : Messages(messages) {}

  /// One entry; an empty line follows it.
  void Entry(const std::string& text) { Text.append(text).append(LineEnd).append(LineEnd); }
  void Entry(Label label, std::string_view equals, double value, std::string_view end) {
    Entry(Word(label) + std::string(equals) + NumberToText(value) + std::string(end));
  }
  void List(int number, std::span<const double> values) {
    std::string text = Word(DataListLabel) + " " + std::to_string(number) + " : ";
    for (const double value : values) text += NumberToText(value) + ", ";
    Entry(text);
  }
  const std::string& Word(Label label) const { return Messages.GetMessage(label); }

  std::string Text;

 private:
  const MessageStore& Messages;
};

std::string ModeText(const std::vector<double>& modes, const ReportWriter& report) {
  std::string text;
  for (const double mode : modes) text += (text.empty() ? "" : ", ") + NumberToText(mode);
  return modes.empty() ? report.Word(NoModeLabel) : text;
}

void WriteDescription(ReportWriter& report, const StatisticsResult& result) {
  report.Entry(report.Word(HeadingLabel));
  report.Entry(CountLabel, " = ", result.Main.Count, ",");
  report.Entry(SumLabel, " = ", result.Main.Sum, ",");
  report.Entry(MeanLabel, " = ", result.Main.Mean(), ",");
  report.Entry(MedianLabel, " = ", result.Median, ",");
  report.Entry(MaxLabel, " = ", result.Max, ",");
  report.Entry(MinLabel, " = ", result.Min, ",");
  report.Entry(RangeLabel, " = ", result.Range, ",");
  report.Entry(report.Word(ModeLabel) + " = " + ModeText(result.Modes, report) + ",");
}

void WriteDispersion(ReportWriter& report, const StatisticsResult& result) {
  if (!result.Sample) return;
  report.Entry(SampleVarianceLabel, " =", result.Sample->Variance, ",");
  report.Entry(SampleSDLabel, " =", result.Sample->SD, " ");
  report.Entry(PopulationVarianceLabel, " =", result.Population->Variance, ",");
  report.Entry(PopulationSDLabel, " =", result.Population->SD, " ");
  if (!result.Reliability) return;
  report.Entry(KR20Label, " =", result.Reliability->KR20, " ");
  report.Entry(KR21Label, " =", result.Reliability->KR21, " ");
  report.Entry(SEMLabel, " =", result.Reliability->SEM, " ");
}

void WriteTStatistics(ReportWriter& report, const StatisticsResult& result) {
  report.Entry(TwoSampleTLabel, " = ", result.TwoSampleT, " ");
  if (result.PairedT) report.Entry(PairedTLabel, " = ", *result.PairedT, " ");
  if (!result.Critical) return;
  report.Entry(DegreesOfFreedomLabel, " : ", result.Critical->DegreesOfFreedom, " ");
  report.Entry(AlphaLabel, " : ", result.Critical->Alpha, " ");
  report.Entry(CriticalTLabel, " = ", result.Critical->T, " ");
}

}  // namespace

std::string WriteReport(const StatisticsResult& result, const MessageStore& messages) {
  ReportWriter report(messages);
  WriteDescription(report, result);
  WriteDispersion(report, result);
  report.List(1, result.Values);
  report.List(2, result.Values2);
  WriteTStatistics(report, result);
  return std::move(report.Text);
}

std::vector<FinishedCalculation> KeyFigures(const StatisticsResult& result, const MessageStore& messages) {
  std::vector<FinishedCalculation> figures;
  const auto add = [&](Label label, double value) {
    figures.push_back({messages.GetMessage(label) + " = " + NumberToText(value), value});
  };
  add(MeanLabel, result.Main.Mean());
  if (result.Sample) add(SampleSDLabel, result.Sample->SD);
  return figures;
}

}  // namespace qves
