// Searches for a rate.
#pragma once

#include <functional>

#include "formulas/Numbers.h"

namespace qves {

/// The root of `value`, a function of a rate above -1, that is nearest to a rate of 0.1. The function need be
/// right in sign only; `exact`, in extended precision, gives the root its last digits. Faults when `value`
/// changes its sign nowhere.
Real NearestRate(const std::function<double(double rate)>& value,
                 const std::function<Real(Real rate)>& exact);

/// The middle of the rates from 0 to `high`, halved until `excess` there is closer to 0 than 0.00001, or 200
/// times: what the searches for a bond's yield and for the rate of an odd period are wanted to do. Above 0
/// the root lies above the middle.
double Halve(const std::function<double(double rate)>& excess, double high);

}  // namespace qves
