// A view whose calculation is a value of that type: it can be taken back, done again and found again after
// another view.
#pragma once

#include <any>
#include <string>

#include "model/StepLog.h"
#include "views/View.h"

namespace qves {

template <class State>
class StateView : public View {
 public:
  using View::View;

  void Form_Load() override {
    View::Form_Load();
    const auto* left = std::any_cast<Snapshot>(&Frame.LeftBehind());
    Steps.Begin(left ? *left : Take());
    NoteStep(ViewName());
  }
  void Form_Unload() override {
    Frame.LeftBehind() = Take();
    View::Form_Unload();
  }

 protected:
  /// Everything that a step may have changed: the calculation, and what is chosen on the form.
  struct Snapshot {
    State Calculation;
    Choices Chosen;
  };

  StateFields EngineState() const override { return Describe(Now); }
  /// A move in a list of data is no step, but the chosen point comes back with the step before.
  void NoteStep(const std::string& name) override {
    Snapshot& noted = Steps.Now();
    const Choices chosen = TakeChoices();
    if (chosen.Options == noted.Chosen.Options && Now == noted.Calculation)
      return void(noted.Chosen.Points = chosen.Points);
    Steps.Add({Now, chosen}, name);
    ShowOpenLine();
  }
  const std::string* UndoStep() override { return PutBack(Steps.Undo()); }
  const std::string* RedoStep() override { return PutBack(Steps.Redo()); }
  /// The calculation on the form is another one.
  virtual void Restore(const State& calculation) { Now = calculation; }

  State Now;

 private:
  Snapshot Take() const { return {Now, TakeChoices()}; }
  const std::string* PutBack(const std::string* step) {
    if (!step) return nullptr;
    Restore(Steps.Now().Calculation);
    PutChoices(Steps.Now().Chosen);
    ShowCalculation();
    return step;
  }

  StepLog<Snapshot> Steps;
};

}  // namespace qves
