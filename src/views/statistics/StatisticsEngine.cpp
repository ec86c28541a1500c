#include "views/statistics/StatisticsEngine.h"

#include "formulas/Arithmetic.h"
#include "model/ArithmeticFault.h"
#include "services/MessageIds.h"
#include "views/statistics/StatisticsButtons.h"

namespace qves {
namespace {

using enum ActionKind;

constexpr OperatorRow SignOperator[] = {{Buttons::Sign.Caption, Arity::Unary, ChangeSign}};

}  // namespace

const ListWords& WordsOf(DataList list) {
  static constexpr ListWords words[] = {{1401, 1404, 1407, 1411}, {1433, 1434, 1435, 1431}};
  return words[static_cast<std::size_t>(list)];
}

StatisticsEngine::StatisticsEngine(StatisticsState& state, EngineHost& host, StatisticsHost& data,
                                   Announcer& announcer)
    : EntryEngine(state, SignOperator, host, announcer), Data(data), Now(state) {}

void StatisticsEngine::Add(const PressedKey&) {
  Now.LastAction = Equal;
  // The text alone counts, so "0." is added; and the sentence is no message. Both are wanted.
  if (Data.IgnoresZero() && Now.EntryText == "0") return Says.Say("data points of Zero will be ignored");
  const DataList list = Data.TargetList();
  if (Data.Items(list).size() >= MostPoints) throw ArithmeticFault(FaultReason::ListFull, "the list is full");
  Data.AddItem(list, Now.EntryText);
  Says.SayMessage(WordsOf(list).Added, Now.EntryText);
}

void StatisticsEngine::Remove(const PressedKey&) {
  Now.LastAction = Equal;
  const DataList list = Data.TargetList();
  const int item = Data.SelectedItem(list);
  if (item < 0) return Says.SayMessage(WordsOf(list).Empty);
  Says.SayMessage(WordsOf(list).Removed, Data.Items(list)[static_cast<std::size_t>(item)]);
  Data.RemoveItem(list, item);
}

void StatisticsEngine::Clear(const PressedKey&) {
  Now.LastAction = Equal;
  const DataList list = Data.TargetList();
  Data.ClearItems(list);
  Says.SayMessage(WordsOf(list).Cleared);
}

void StatisticsEngine::Run(const PressedKey&) {
  Now.LastAction = Equal;
  if (!Data.Items(DataList::Main).empty()) Data.Report(Now.DegreesOfFreedom, Now.Alpha);
}

void StatisticsEngine::SetParameter(const PressedKey& key) {
  if (Now.ErrorState) {
    Now.ErrorState = false;
    Now.EntryText = "0";
    Show();
    return Says.SayMessage(Buttons::ClearEntry.NameMessage);
  }
  const bool isAlpha = key.Caption == statistics::Buttons::Alpha.Caption;
  (isAlpha ? Now.Alpha : Now.DegreesOfFreedom) = ValueOf(DisplayText());
  Says.SayMessage(isAlpha ? AlphaSetMessage : DegreesSetMessage, DisplayText());
  Now.LastAction = Equal;
}

}  // namespace qves
