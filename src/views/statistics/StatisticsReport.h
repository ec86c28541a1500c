// The report of a run as a text file.
#pragma once

#include <string>
#include <vector>

#include "services/History.h"
#include "services/Messages.h"
#include "views/statistics/StatisticsRun.h"

namespace qves {

/// The report in UTF-8 with "\r\n" at its line ends. The uneven blanks and commas around the figures are
/// wanted.
std::string WriteReport(const StatisticsResult& result, const MessageStore& messages);

/// What the history keeps of a run: its mean, and its sample standard deviation where there is one.
std::vector<FinishedCalculation> KeyFigures(const StatisticsResult& result, const MessageStore& messages);

}  // namespace qves
