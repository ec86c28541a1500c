// How long the core takes from a key press to the back end's speak call and to the end of the key.
#include <benchmark/benchmark.h>

#include "FakePlatform.h"
#include "app/CalculatorApp.h"
#include "services/ServiceSet.h"

namespace qves {
namespace {

struct Calculator : AppObserver {
  FakePlatform Outside;
  ServiceSet Set{Outside.All};
  CalculatorApp App{Set.All, *this};

  Calculator() { App.Main(); }
  void Press(const KeyEvent& event) {
    App.KeyDown(event);
    App.KeyUp(event.Code);
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

void StartAndLeave(benchmark::State& state) {
  for (auto _ : state) {
    Calculator calculator;
    calculator.App.Leave();
  }
}
BENCHMARK(StartAndLeave);

}  // namespace
}  // namespace qves
