// The Business view: financial registers, cash flows, depreciation, bonds and dates.
#pragma once

#include "views/StateView.h"
#include "views/business/BusinessEngine.h"

namespace qves {

class frmBusiness : public StateView<BusinessState>, private BusinessHost {
 public:
  frmBusiness(Services& services, ViewFrame& frame);

 private:
  // View; BusinessTelling.cpp
  void AddModes(Telling& telling) const override;
  Telling ReadBack() const override;
  void AddFlows(Telling& telling) const;

  // BusinessHost
  int PaymentMode() const override { return PMTMode->ListIndex; }
  int OddPeriod() const override { return OddPeriodMode->ListIndex; }
  int InterestBasis() const override;
  Date Today() const override { return Common.Outside.Time.Today(); }
  const DateNames& NamesOfDates() const override { return Names; }

  ListBox* INTBase;
  ListBox* PMTMode;
  ListBox* OddPeriodMode;
  DateNames Names;
  BusinessEngine* Business;
};

}  // namespace qves
