// The Standard view: chained arithmetic, percent, square root, reciprocal, a memory and a tape.
#pragma once

#include "views/StateView.h"
#include "views/standard/StandardEngine.h"

namespace qves {

class frmStandard : public StateView<StandardState>, private TapeHost {
 public:
  frmStandard(Services& services, ViewFrame& frame);

 private:
  void ShowCalculation() override {
    View::ShowCalculation();
    SetText(*Tape, TapeText(Now));
  }
  void AppendTape(std::string_view line) override { AppendText(*Tape, line); }
  void ClearTape() override { SetText(*Tape, ""); }

  TextBox* Tape;
};

}  // namespace qves
