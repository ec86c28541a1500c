// A calculation of the Standard view.
#pragma once

#include "engine/EntryState.h"
#include "model/SharedList.h"

namespace qves {

struct StandardState : EntryState {
  std::string TapeLine;          ///< of the calculation made last
  SharedList<std::string> Tape;  ///< a line for each calculation

  bool operator==(const StandardState&) const = default;
};

/// The tape as it is shown: "\r\n" after each line.
inline std::string TapeText(const StandardState& state) {
  std::string text;
  for (std::size_t i = 0; i < state.Tape.size(); ++i) text.append(state.Tape[i]).append("\r\n");
  return text;
}

inline StateFields Describe(const StandardState& state) {
  StateFields fields = Describe(static_cast<const EntryState&>(state));
  fields.insert(fields.end(), {{"TapeLine", state.TapeLine}, {"TapeText", TapeText(state)}});
  return fields;
}

}  // namespace qves
