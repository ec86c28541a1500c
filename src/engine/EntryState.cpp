#include "engine/EntryState.h"

namespace qves {

StateFields Describe(const EntryState& state) {
  return {{"PrevEntryText", state.PrevEntryText},
          {"EntryText", state.EntryText},
          {"Accumulator", state.Accumulator},
          {"CurrentValue", state.CurrentValue},
          {"DecimalEntered", state.DecimalEntered},
          {"MemoryText", state.MemoryCell.Text()},
          {"PendingOp", state.PendingOp},
          {"LastAction", std::string(ToWord(state.LastAction))},
          {"CurrentOp", state.CurrentOp}};
}

}  // namespace qves
