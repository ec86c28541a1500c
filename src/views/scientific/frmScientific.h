// The Scientific view: functions, powers, bitwise operations, number bases and parentheses.
#pragma once

#include "views/StateView.h"
#include "views/scientific/ScientificEngine.h"

namespace qves {

class frmScientific : public StateView<ScientificState>, private ScientificHost {
 public:
  frmScientific(Services& services, ViewFrame& frame);

 private:
  void ShowCalculation() override {
    View::ShowCalculation();
    SetBaseButtons(Now.NumBase);
  }

  void AddModes(Telling& telling) const override;

  // ScientificHost
  bool InverseChecked() const override { return Inv->Checked; }
  bool HyperbolicChecked() const override { return Hyp->Checked; }
  void ClearInverse() override { SetChecked(*Inv, false); }
  void ClearHyperbolic() override { SetChecked(*Hyp, false); }
  int TrigMode() const override { return TrigModes->ListIndex; }
  double NextRandom() override { return Common.Outside.Random.Next(); }

  void OnNewChoice(ListControl& list) override;
  void SetBaseButtons(int base);

  CheckBox* Inv;
  CheckBox* Hyp;
  ListBox* NumBases;
  ListBox* TrigModes;
  ScientificEngine* Scientific;
};

}  // namespace qves
