// The Scientific view: functions, powers, bitwise operations, number bases and parentheses.
#pragma once

#include "views/View.h"
#include "views/scientific/ScientificEngine.h"

namespace qves {

class frmScientific : public View, private ScientificHost {
 public:
  frmScientific(Services& services, ViewFrame& frame);

 private:
  StateFields EngineState() const override { return Describe(State); }

  // ScientificHost
  bool InverseChecked() const override { return Inv->Checked; }
  bool HyperbolicChecked() const override { return Hyp->Checked; }
  void ClearInverse() override { SetChecked(*Inv, false); }
  void ClearHyperbolic() override { SetChecked(*Hyp, false); }
  int TrigMode() const override { return TrigModes->ListIndex; }
  double NextRandom() override { return Common.Outside.Random.Next(); }

  void OnNewChoice(ListControl& list) override;
  void SetBaseButtons(int base);

  ScientificState State;
  CheckBox* Inv;
  CheckBox* Hyp;
  ListBox* NumBases;
  ListBox* TrigModes;
  ScientificEngine* Scientific;
};

}  // namespace qves
