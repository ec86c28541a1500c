// The Standard view: chained arithmetic, percent, square root, reciprocal, a memory and a tape.
#pragma once

#include "views/View.h"

namespace qves {

class frmStandard : public View {
 public:
  frmStandard(Services& services, ViewFrame& frame);
};

}  // namespace qves
