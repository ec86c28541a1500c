// One run of the statistics: from the lists as they were typed to all figures of the report.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "formulas/Descriptive.h"
#include "platform/Spreadsheet.h"

namespace qves {

struct StatisticsInput {
  std::vector<std::string> Items;   ///< of the main list
  std::vector<std::string> Items2;  ///< of the second one
  bool IgnoreZero = false;          ///< points of 0 count in neither
  double DegreesOfFreedom = 0;      ///< of the critical t; 0 or less: it is not wanted
  double Alpha = 0;                 ///< its significance level; outside of 0 to 1: it is not wanted
};

struct ReliabilityResult {
  double KR20 = 0;
  double KR21 = 0;
  double SEM = 0;
};

struct CriticalT {
  double DegreesOfFreedom = 0;
  double Alpha = 0;
  double T = 0;  ///< 0 when there is no t statistic to compare it with
};

struct StatisticsResult {
  std::vector<double> Values;   ///< the points used, in the order of the list
  std::vector<double> Values2;  ///< those of the second list
  Sums Main;
  double Median = 0;
  double Max = 0;
  double Min = 0;
  double Range = 0;
  std::vector<double> Modes;
  std::optional<Dispersion> Sample;  ///< nothing for a single point
  std::optional<Dispersion> Population;
  std::optional<ReliabilityResult> Reliability;
  double TwoSampleT = 0;          ///< stays 0 while a list has fewer than two points
  std::optional<double> PairedT;  ///< when both lists have the same number of points; 0 as the other
  std::optional<CriticalT> Critical;
};

/// Faults when an item is no number, when no point is used, when a figure is not finite or has no value.
StatisticsResult RunStatistics(const StatisticsInput& input, Spreadsheet& spreadsheet);

}  // namespace qves
