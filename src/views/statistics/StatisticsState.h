// A calculation of the Statistics view.
#pragma once

#include <array>

#include "engine/EntryState.h"
#include "model/SharedList.h"

namespace qves {

enum class DataList { Main, Second };

/// What came of the import made last, for who asks.
struct ImportOutcome {
  std::string File;  ///< its name without its folder; "" while there was none
  DataList Target = DataList::Main;
  bool IsRead = true;
  std::size_t Count = 0;  ///< of numbers that came
  int StoppedAt = 0;      ///< the line; 0 when it came to the end
  std::string Word = {};  ///< what was no number there
  bool IsFull = false;    ///< it stopped as the list was full

  bool operator==(const ImportOutcome&) const = default;
};

struct StatisticsState : EntryState {
  double DegreesOfFreedom = 0;
  double Alpha = 0;
  std::array<SharedList<std::string>, 2> Lists;  ///< by DataList: the points as they were typed

  ImportOutcome Imported;

  bool operator==(const StatisticsState&) const = default;
};

inline StateFields Describe(const StatisticsState& state) {
  StateFields fields = Describe(static_cast<const EntryState&>(state));
  fields.insert(fields.end(), {{"DegreesOfFreedom", state.DegreesOfFreedom}, {"Alpha", state.Alpha}});
  return fields;
}

}  // namespace qves
