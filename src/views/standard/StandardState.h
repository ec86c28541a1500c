// A calculation of the Standard view.
#pragma once

#include "engine/EntryState.h"

namespace qves {

struct StandardState : EntryState {
  std::string TapeLine;  ///< of the calculation made last
  std::string TapeText;  ///< a line for each calculation, "\r\n" after each

  bool operator==(const StandardState&) const = default;
};

inline StateFields Describe(const StandardState& state) {
  StateFields fields = Describe(static_cast<const EntryState&>(state));
  fields.insert(fields.end(), {{"TapeLine", state.TapeLine}, {"TapeText", state.TapeText}});
  return fields;
}

}  // namespace qves
