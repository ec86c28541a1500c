// What the Business view tells of its modes and its registers.
#include <utility>

#include "formulas/Numbers.h"
#include "services/MessageIds.h"
#include "views/business/BusinessButtons.h"
#include "views/business/frmBusiness.h"

namespace qves {

namespace Key = business::Buttons;

namespace {

constexpr std::pair<ActionKind, const ControlSpec&> Prefixes[] = {
    {ActionKind::Cal, Key::Solve}, {ActionKind::Rcl, Key::Recall}, {ActionKind::Sto, Key::Store}};

}  // namespace

void frmBusiness::AddModes(Telling& telling) const {
  View::AddModes(telling);
  for (const auto& [action, key] : Prefixes)
    if (Now.LastAction == action) telling.Add(Message(PrefixWaitsMessage), {Message(key.NameMessage)});
}

/// With all digits, however many the user wants to hear of a result.
Telling frmBusiness::ReadBack() const {
  Telling held(Common.Speech, Prose);
  const auto filled = Business->FilledRegisters();
  for (const RegisterContent& content : filled)
    held.Add(Message(content.NameMessage) + " " + std::string(Placeholder), {held.Number(content.Number)},
             content.Kind);
  AddFlows(held);
  if (held.Shown().empty()) held.Add(Message(RegistersEmptyMessage));
  AddChoices(held, ChoicesTold::All);
  return held;
}

/// Flows that follow each other and are equal are told together.
void frmBusiness::AddFlows(Telling& telling) const {
  std::vector<double> flows = Now.Registers.CashFlows.Copy();
  flows.pop_back();  // the slot behind the last
  for (std::size_t first = 0; first < flows.size();) {
    std::size_t last = first + 1;
    while (last < flows.size() && flows[last] == flows[first]) ++last;
    const ToldValue flow = telling.Number(NumberToText(flows[first]));
    if (last == first + 1)
      telling.Add(Message(FlowMessage), {std::to_string(last), flow});
    else
      telling.Add(Message(EqualFlowsMessage),
                  {std::to_string(first + 1), std::to_string(last), std::to_string(last - first), flow});
    first = last;
  }
}

}  // namespace qves
