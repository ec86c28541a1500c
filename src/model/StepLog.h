// Undo and redo over a value: what it was after each step.
#pragma once

#include <deque>
#include <memory>
#include <string>
#include <utility>

namespace qves {

template <class Value>
class StepLog {
 public:
  static constexpr std::size_t MostSteps = 1000;

  /// Begins anew, with nothing to undo.
  void Begin(Value now) {
    Steps.clear();
    Done = 0;
    Present = std::make_unique<Value>(std::move(now));
  }
  /// A step has been done. There is nothing to redo any more.
  void Add(Value now, const std::string& name) {
    while (Steps.size() > Done) Steps.pop_back();
    Steps.push_back({std::exchange(Present, std::make_unique<Value>(std::move(now))), name});
    if (Steps.size() > MostSteps) Steps.pop_front();
    Done = Steps.size();
  }
  /// The name of the step taken back or done again; null at the ends. `Now` is then the value to put back.
  const std::string* Undo() { return Done > 0 ? Exchange(--Done) : nullptr; }
  const std::string* Redo() { return Done < Steps.size() ? Exchange(Done++) : nullptr; }
  /// The value as it was noted last.
  Value& Now() { return *Present; }

 private:
  struct Step {
    std::unique_ptr<Value> Other;  ///< before it where it is done, after it where it is undone
    std::string Name;
  };

  const std::string* Exchange(std::size_t step) {
    Present.swap(Steps[step].Other);
    return &Steps[step].Name;
  }

  std::deque<Step> Steps;
  std::size_t Done = 0;  ///< how many of the steps are done; the rest is undone
  std::unique_ptr<Value> Present;
};

}  // namespace qves
