// The functions that a spreadsheet program would compute.
#pragma once

#include <optional>

namespace qves {

class Spreadsheet {
 public:
  virtual ~Spreadsheet() = default;
  /// The two-tailed inverse of Student's t distribution: the t that is exceeded on both sides together with
  /// the probability `alpha` (above 0, below 1). The degrees of freedom are truncated to an integer. Nothing
  /// when they are below 1 then, or when the value cannot be had.
  virtual std::optional<double> TInv(double alpha, double degreesOfFreedom) = 0;
};

}  // namespace qves
