// Undo and redo over a value: what it was after each step.
#pragma once

#include <deque>
#include <string>
#include <utility>

namespace qves {

/// `Value` compares equal where nothing has happened that is worth a step.
template <class Value>
class StepLog {
 public:
  static constexpr std::size_t MostSteps = 1000;

  /// Begins anew, with nothing to undo.
  void Begin(Value now) {
    Steps.clear();
    Done = 0;
    Present = std::move(now);
  }
  /// Something has been done. It is a step when the value is another now; then there is nothing to redo.
  void Note(Value now, const std::string& name) {
    if (!(now == Present)) Push(name);
    Present = std::move(now);
  }
  /// The name of the step taken back or done again; null at the ends. `Now` is then the value to put back.
  const std::string* Undo() { return Done > 0 ? Exchange(--Done) : nullptr; }
  const std::string* Redo() { return Done < Steps.size() ? Exchange(Done++) : nullptr; }
  const Value& Now() const { return Present; }

 private:
  struct Step {
    Value Other;  ///< before it where it is done, after it where it is undone
    std::string Name;
  };

  void Push(const std::string& name) {
    while (Steps.size() > Done) Steps.pop_back();
    Steps.push_back({std::move(Present), name});
    if (Steps.size() > MostSteps) Steps.pop_front();
    Done = Steps.size();
  }
  const std::string* Exchange(std::size_t step) {
    std::swap(Present, Steps[step].Other);
    return &Steps[step].Name;
  }

  std::deque<Step> Steps;
  std::size_t Done = 0;  ///< how many of the steps are done; the rest is undone
  Value Present;
};

}  // namespace qves
