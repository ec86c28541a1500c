// The search for a rate of return.
#pragma once

#include <functional>

namespace qves {

/// The root of `value`, a function of a rate above -1, that is nearest to a rate of 0.1, to the last digit of
/// a double. The function need be right in sign only. Faults when it changes its sign nowhere.
double NearestRate(const std::function<double(double rate)>& value);

}  // namespace qves
