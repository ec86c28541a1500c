// The spreadsheet functions out of a library of mathematics.
#pragma once

#include "platform/Spreadsheet.h"

namespace qves {

class InverseT : public Spreadsheet {
 public:
  std::optional<double> TInv(double alpha, double degreesOfFreedom) override;
};

}  // namespace qves
