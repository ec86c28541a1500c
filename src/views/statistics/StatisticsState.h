// A calculation of the Statistics view.
#pragma once

#include <array>
#include <vector>

#include "engine/EntryState.h"

namespace qves {

struct StatisticsState : EntryState {
  double DegreesOfFreedom = 0;
  double Alpha = 0;
  std::array<std::vector<std::string>, 2> Lists;  ///< by DataList: the points as they were typed

  bool operator==(const StatisticsState&) const = default;
};

inline StateFields Describe(const StatisticsState& state) {
  StateFields fields = Describe(static_cast<const EntryState&>(state));
  fields.insert(fields.end(), {{"DegreesOfFreedom", state.DegreesOfFreedom}, {"Alpha", state.Alpha}});
  return fields;
}

}  // namespace qves
