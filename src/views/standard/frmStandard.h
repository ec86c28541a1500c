// The Standard view: chained arithmetic, percent, square root, reciprocal, a memory and a tape.
#pragma once

#include "views/View.h"
#include "views/standard/StandardEngine.h"

namespace qves {

class frmStandard : public View, private TapeHost {
 public:
  frmStandard(Services& services, ViewFrame& frame);

 private:
  StateFields EngineState() const override { return Describe(State); }
  void AppendTape(std::string_view line) override { AppendText(*Tape, line); }
  void ClearTape() override { SetText(*Tape, ""); }

  StandardState State;
  TextBox* Tape;
};

}  // namespace qves
