// The Business view: financial registers, cash flows, depreciation, bonds and dates.
#pragma once

#include "views/StateView.h"
#include "views/business/BusinessEngine.h"

namespace qves {

class frmBusiness : public StateView<BusinessState>, private BusinessHost {
 public:
  frmBusiness(Services& services, ViewFrame& frame);

 private:
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
};

}  // namespace qves
