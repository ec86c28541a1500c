#include "views/business/Amortization.h"

#include "engine/Numbers.h"
#include "model/ArithmeticFault.h"
#include "views/business/Annuity.h"

namespace qves {

AmortizedPart Amortize(double rate, double periods, double loan, int payments) {
  if (payments < 0) throw ArithmeticFault("a negative number of payments");
  AmortizedPart part;
  for (int k = 1; k <= payments; ++k) {
    part.Principal += rtcPPMT(rate, k, periods, -loan);
    part.Interest += rtcIPMT(rate, k, periods, -loan);
  }
  return {Checked(part.Principal), Checked(part.Interest)};
}

}  // namespace qves
