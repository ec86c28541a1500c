// The registers of the Business view.
#pragma once

#include <cstdint>
#include <optional>

#include "formulas/Dates.h"
#include "model/SharedList.h"

namespace qves {

struct FinancialRegisters {
  double N = 0;    ///< number of periods
  double I = 0;    ///< rate a period, a fraction
  double PV = 0;   ///< present value
  double PMT = 0;  ///< payment a period
  double FV = 0;   ///< future value
  double CF0 = 0;  ///< the initial investment
  double J = 0;    ///< index of a cash flow, from 1
  /// The flows, and one slot more, which is 0.
  SharedList<double> CashFlows = {0};
  std::int16_t LastGroupCount = 0;
  DayNumber BeginDate = 0;
  DayNumber EndDate = 0;

  bool operator==(const FinancialRegisters&) const = default;

  std::int16_t FlowCount() const { return static_cast<std::int16_t>(CashFlows.size() - 1); }
};

/// Adds a flow. Faults when the list is full: 32767 flows.
void AppendFlow(FinancialRegisters& registers, double flow);
/// The slot of flow j; nothing when j is not above 0, or above the number of flows. Faults when j, which may
/// be a fraction, is rounded to no slot.
std::optional<std::size_t> FindFlow(const FinancialRegisters& registers);
/// Makes the last flow stand `count` times at the end of the list; a count below 1 shortens the list instead.
/// Faults, and changes nothing, when there is no flow and when the list would be too short or too long.
void RepeatLastFlow(FinancialRegisters& registers, double count);

}  // namespace qves
