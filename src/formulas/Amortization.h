// The repayment of a loan by equal payments at the end of each period: what the standard functions for the
// principal and the interest in one payment (ODF OpenFormula, PPMT and IPMT) give for the first of them,
// added up.
#pragma once

namespace qves {

/// What a number of payments have done.
struct AmortizedPart {
  double Principal = 0;
  double Interest = 0;
};

/// The first payments of a loan of `periods` payments. The payment is the one that the rate (a fraction a
/// period), the periods and the loan give. The timing is always the end of a period, whatever is chosen for
/// other problems: this is wanted. Faults for a count outside 0 to `periods`.
AmortizedPart Amortize(double rate, double periods, double loan, int payments);

}  // namespace qves
