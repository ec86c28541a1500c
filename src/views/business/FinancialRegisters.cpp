#include "views/business/FinancialRegisters.h"

#include <algorithm>
#include <array>

#include "formulas/Numbers.h"
#include "model/ArithmeticFault.h"

namespace qves {

void AppendFlow(FinancialRegisters& registers, double flow) {
  ToInt16(registers.FlowCount() + 1.0, FaultReason::ListFull);
  const std::size_t slot = registers.CashFlows.size() - 1;
  registers.CashFlows.Shorten(slot);
  registers.CashFlows.Append(std::array{flow, 0.0});
}

std::optional<std::size_t> FindFlow(const FinancialRegisters& registers) {
  if (!(registers.J > 0 && registers.J <= registers.FlowCount())) return std::nullopt;
  const auto slot = ToInt16(registers.J - 1);
  if (slot < 0) throw ArithmeticFault(FaultReason::NoSuchFlow, "no flow has that index");
  return static_cast<std::size_t>(slot);
}

void RepeatLastFlow(FinancialRegisters& registers, double count) {
  const std::int16_t before = registers.FlowCount();
  if (before == 0) throw ArithmeticFault(FaultReason::NoSuchFlow, "no flow to repeat");
  const std::int16_t after =
      ToInt16(before + count - 1, count > 0 ? FaultReason::ListFull : FaultReason::OutOfRange);
  const std::int16_t group = ToInt16(count);
  if (after < 0) throw ArithmeticFault(FaultReason::OutOfRange, "fewer flows than none");
  const double last = registers.CashFlows[static_cast<std::size_t>(before - 1)];
  registers.CashFlows.Shorten(static_cast<std::size_t>(std::min(before, after)));
  // Of a fraction that is rounded up the first new flow is 0: wanted so.
  std::vector<double> added(static_cast<std::size_t>(std::max(after - before, 0)) + 1);
  for (std::size_t k = 1; static_cast<double>(k) <= count - 1; ++k) added[added.size() - 1 - k] = last;
  registers.CashFlows.Append(added);
  registers.LastGroupCount = group;
}

}  // namespace qves
