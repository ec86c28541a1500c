// A calculation of the Statistics view.
#pragma once

#include <array>

#include "engine/EntryState.h"
#include "model/SharedList.h"

namespace qves {

struct StatisticsState : EntryState {
  double DegreesOfFreedom = 0;
  double Alpha = 0;
  std::array<SharedList<std::string>, 2> Lists;  ///< by DataList: the points as they were typed

  bool operator==(const StatisticsState&) const = default;
};

inline StateFields Describe(const StatisticsState& state) {
  StateFields fields = Describe(static_cast<const EntryState&>(state));
  fields.insert(fields.end(), {{"DegreesOfFreedom", state.DegreesOfFreedom}, {"Alpha", state.Alpha}});
  return fields;
}

}  // namespace qves
