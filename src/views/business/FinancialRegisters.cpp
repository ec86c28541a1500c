#include "views/business/FinancialRegisters.h"

#include <cmath>

#include "formulas/Numbers.h"
#include "model/ArithmeticFault.h"

namespace qves {

void AppendFlow(FinancialRegisters& registers, double flow) {
  ToInt16(registers.FlowCount() + 1.0);
  registers.CashFlows.back() = flow;
  registers.CashFlows.push_back(0);
}

double* FindFlow(FinancialRegisters& registers) {
  if (!(registers.J > 0 && registers.J <= registers.FlowCount())) return nullptr;
  const auto slot = ToInt16(registers.J - 1);
  if (slot < 0) throw ArithmeticFault("no flow has that index");
  return &registers.CashFlows[static_cast<std::size_t>(slot)];
}

void RepeatLastFlow(FinancialRegisters& registers, double count) {
  const std::int16_t before = registers.FlowCount();
  if (before == 0) throw ArithmeticFault("no flow to repeat");
  const std::int16_t after = ToInt16(before + count - 1);
  const std::int16_t group = ToInt16(count);
  if (after < 0) throw ArithmeticFault("fewer flows than none");
  const double last = registers.CashFlows[static_cast<std::size_t>(before - 1)];
  registers.CashFlows.resize(static_cast<std::size_t>(after) + 1);
  registers.CashFlows.back() = 0;
  for (int k = 1; k <= count - 1; ++k) registers.CashFlows[static_cast<std::size_t>(after - k)] = last;
  registers.LastGroupCount = group;
}

}  // namespace qves
