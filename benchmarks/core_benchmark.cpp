// How long the core takes from a key press to the back end's speak call and to the end of the key.
#include <benchmark/benchmark.h>

#include "EnglishVoice.h"
#include "FakePlatform.h"
#include "app/CalculatorApp.h"
#include "formulas/Amortization.h"
#include "formulas/Annuity.h"
#include "formulas/Bonds.h"
#include "formulas/CashFlows.h"
#include "formulas/NumberBases.h"
#include "formulas/Numbers.h"
#include "model/ArithmeticFault.h"
#include "model/StepLog.h"
#include "services/AppSettings.h"
#include "services/ServiceSet.h"
#include "views/MenuIds.h"
#include "views/standard/StandardState.h"
#include "views/statistics/StatisticsEngine.h"
#include "voicing/VoicedText.h"

namespace qves {
namespace {

struct Calculator : AppObserver {
  FakePlatform Outside;
  ServiceSet Set{Outside.All};
  CalculatorApp App{Set.All, *this};

  explicit Calculator(int view = StandardView) { App.Main({view}); }
  void Press(const KeyEvent& event) {
    App.KeyDown(event);
    App.KeyUp(event.Code);
    Set.All.Speech.EndTurn();
    Outside.Speech.Said.clear();
  }
};

constexpr KeyEvent Digit{'7', NoShift, U'7'};
constexpr KeyEvent Plus{KeyPadAdd, NoShift, 0};
constexpr KeyEvent Equal{KeyEqual, NoShift, U'='};
constexpr KeyEvent Escape{KeyEscape, NoShift, 0};

void DigitKey(benchmark::State& state) {
  Calculator calculator;
  int typed = 0;
  for (auto _ : state) {
    calculator.Press(Digit);
    if (++typed % 15 == 0) calculator.Press(Escape);
  }
}
BENCHMARK(DigitKey);

/// A digit, taken back, done again and taken back: four keys.
void UndoAndRedoOfADigit(benchmark::State& state) {
  Calculator calculator;
  for (auto _ : state)
    for (const KeyEvent& key :
         {Digit, KeyEvent{KeyF3, NoShift, 0}, KeyEvent{KeyF3, ShiftBit, 0}, KeyEvent{KeyF3, NoShift, 0}})
      calculator.Press(key);
}
BENCHMARK(UndoAndRedoOfADigit);

/// What a step costs: a calculation noted 1,000 steps deep.
void NoteAStep(benchmark::State& state) {
  StandardState calculation;
  StepLog<StandardState> steps;
  steps.Begin(calculation);
  int typed = 0;
  for (auto _ : state) {
    calculation.EntryText = ++typed % 2 == 0 ? "2.23606797749979" : "3.14159265358979";
    steps.Add(calculation, "square root");
  }
}
BENCHMARK(NoteAStep);

void ChainedCalculation(benchmark::State& state) {
  Calculator calculator;
  int done = 0;
  for (auto _ : state) {
    for (const KeyEvent& key : {Digit, Plus, Digit, Equal}) calculator.Press(key);
    if (++done % 1000 == 0) calculator.Press(Escape);
  }
  state.SetItemsProcessed(4 * state.iterations());
}
BENCHMARK(ChainedCalculation);

void VoicedTextOfAResult(benchmark::State& state) {
  const VoicingRules rules = {English};
  for (auto _ : state) benchmark::DoNotOptimize(MakeVoiced("=  minus 2point23606797749979", rules));
}
BENCHMARK(VoicedTextOfAResult);

void VoicedNameOfAKey(benchmark::State& state) {
  const VoicingRules rules = {English};
  for (auto _ : state) benchmark::DoNotOptimize(MakeVoiced("store to memory", rules));
}
BENCHMARK(VoicedNameOfAKey);

/// Until the voice has the first words of ten megabytes.
void StartOfALongReading(benchmark::State& state) {
  Calculator calculator;
  std::string text;
  std::vector<BookMark> marks;
  while (text.size() < 10'000'000) {
    marks.push_back({text.size(), static_cast<std::int32_t>(marks.size())});
    text += "This sentence of a document has -2.5 numbers in its middle.\n";
  }
  for (auto _ : state) {
    calculator.Set.All.Speech.ReadAloud(text, marks, false, ValueKind::Prose);
    calculator.Set.All.Speech.EndTurn();
    calculator.Outside.Speech.Said.clear();
  }
}
BENCHMARK(StartOfALongReading)->Unit(benchmark::kMillisecond);

/// 200 keys of a scientific user: functions, powers, groups, exponents, the memory.
void ScientificKeys(benchmark::State& state) {
  constexpr std::u32string_view typed =
      U"2*(3+4)*(1.5-0.25)=S30S45O60T12.5Q7N100L2Y10=((1+2)*3)=5X12M+1=V123VR9!P*2=0.5;3+(4/7)=8Q.125RL"
      U"99*(12-(3+4*(5-1)))=1E2E5N45.75;17S18O19T6!7!3.75X2=M2Y0.5=1/3*(3)=P*(2+P)=25Q81N1000L-45MS10*(2";
  static_assert(typed.size() >= 190 && typed.size() <= 210);
  Calculator calculator(ScientificView);
  for (auto _ : state) {
    for (const char32_t key : typed) calculator.Press({static_cast<int>(key), NoShift, key});
    calculator.Press(Escape);
  }
  state.SetItemsProcessed(static_cast<std::int64_t>(typed.size()) * state.iterations());
}
BENCHMARK(ScientificKeys);

void BaseConversion(benchmark::State& state) {
  std::string text = "123456789";
  for (auto _ : state) {
    for (const auto& [from, to] : {std::pair{1, 0}, {0, 3}, {3, 2}, {2, 1}})
      text = ConvertBase(from, to, text);
    benchmark::DoNotOptimize(text);
  }
  state.SetItemsProcessed(4 * state.iterations());
}
BENCHMARK(BaseConversion);

void SolveRegister(benchmark::State& state, char32_t name) {
  Calculator calculator(BusinessView);
  for (const char32_t key : std::u32string_view(U"360N.5I100000P600MT"))
    calculator.Press({key == U'.' ? int{KeyPeriod} : static_cast<int>(key), NoShift, key});
  for (auto _ : state) {
    calculator.Press({'K', NoShift, U'k'});
    calculator.Press({static_cast<int>(name), NoShift, name});
  }
}
BENCHMARK_CAPTURE(SolveRegister, n, U'N');
BENCHMARK_CAPTURE(SolveRegister, i, U'I');
BENCHMARK_CAPTURE(SolveRegister, PV, U'P');
BENCHMARK_CAPTURE(SolveRegister, PMT, U'T');
BENCHMARK_CAPTURE(SolveRegister, FV, U'F');

void RateOfManyFlows(benchmark::State& state) {
  std::vector<double> flows(32768, 1);
  flows[0] = state.range(0) != 0 ? -1000 : -1e30;  // without a rate in reach the whole search is done
  for (auto _ : state) try {
      benchmark::DoNotOptimize(rtcIRR(flows));
    } catch (const ArithmeticFault&) {
    }
}
BENCHMARK(RateOfManyFlows)->Arg(1)->Arg(0)->Unit(benchmark::kMillisecond);

void AmortizeManyPayments(benchmark::State& state) {
  for (auto _ : state) benchmark::DoNotOptimize(Amortize(0.0001, 32767, 100000, 32767));
}
BENCHMARK(AmortizeManyPayments)->Unit(benchmark::kMillisecond);

void YieldOfALongBond(benchmark::State& state) {
  for (auto _ : state) {
    const Bond bond = {FindCoupons(ToDayNumber({2026, 1, 1}), ToDayNumber({9926, 1, 1})), 6, 100};
    benchmark::DoNotOptimize(BondYield(bond, 85.0));
  }
}
BENCHMARK(YieldOfALongBond)->Unit(benchmark::kMillisecond);

/// The Statistics view with both lists full.
struct FullLists : Calculator {
  FullLists() : Calculator(StatisticsView) {
    std::string& text = Outside.Files.Content["/points.txt"];
    for (std::size_t i = 0; i < MostPoints; ++i)
      text += NumberToText(static_cast<double>(i) * 1.0009765625 + 0.1) + "\r\n";
    Outside.FileDialog.Answer = "/points.txt";
    for (int list = 0; list < 2; ++list) {
      View = App.ActiveForm();
      Import();
      View->MouseClick(*View->Find("cbUseList2"));
    }
  }
  void Import() {
    View->ChooseMenu(ImportItem);
    Outside.Speech.Said.clear();
  }
  Form* View = nullptr;
};

void ImportOfAFullList(benchmark::State& state) {
  FullLists calculator;
  for (auto _ : state) calculator.Import();
}
BENCHMARK(ImportOfAFullList)->Unit(benchmark::kMillisecond);

/// The figures, the report and the dialog that reads it, until it has begun to speak; and its end.
void RunOfFullLists(benchmark::State& state) {
  FullLists calculator;
  for (auto _ : state) {
    calculator.Press({'U', NoShift, U'u'});
    calculator.Press(Escape);
    calculator.Press({KeyEnter, NoShift, 0});
  }
}
BENCHMARK(RunOfFullLists)->Unit(benchmark::kMillisecond);

void RemoveFromTheMiddleAndAdd(benchmark::State& state) {
  FullLists calculator;
  auto& list = dynamic_cast<ListView&>(*calculator.View->Find("lvwData"));
  for (auto _ : state) {
    calculator.View->Choose(list, MostPoints / 2);
    calculator.Press({'R', NoShift, U'r'});
    calculator.Press({'A', NoShift, U'a'});
  }
}
BENCHMARK(RemoveFromTheMiddleAndAdd)->Unit(benchmark::kMicrosecond);

/// A full list less one point: the point added and taken back.
void AddAPointAndUndo(benchmark::State& state) {
  FullLists calculator;
  calculator.Press({'R', NoShift, U'r'});
  for (auto _ : state) {
    calculator.Press({'A', NoShift, U'a'});
    calculator.Press({KeyF3, NoShift, 0});
  }
}
BENCHMARK(AddAPointAndUndo)->Unit(benchmark::kMicrosecond);

void StartAndLeave(benchmark::State& state) {
  for (auto _ : state) {
    Calculator calculator;
    calculator.App.Leave();
  }
}
BENCHMARK(StartAndLeave);

}  // namespace
}  // namespace qves
