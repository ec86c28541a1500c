#include "views/standard/StandardEngine.h"

#include "views/LineShapes.h"
#include "views/SharedOperators.h"

namespace qves {

StandardEngine::StandardEngine(StandardState& state, EngineHost& host, TapeHost& tapeHost,
                               Announcer& announcer)
    : EntryEngine(state, shared::Operators, host, announcer), TapeShown(tapeHost), Now(state) {}

std::span<const LineShape> StandardEngine::LineShapes() const {
  return shared::LineShapes;
}

void StandardEngine::Finish(FinishedCalculation calculation) {
  Now.TapeLine = calculation.Line;
  Now.Tape.Append(Now.TapeLine);
  TapeShown.AppendTape(Now.TapeLine + "\r\n");
  EntryEngine::Finish(std::move(calculation));
}

/// The clear-all key empties the tape, too; what else clears keeps it.
void StandardEngine::Memory(const PressedKey& key) {
  if (key.Caption == Buttons::ClearAll.Caption) {
    Now.Tape.Clear();
    TapeShown.ClearTape();
  }
  EntryEngine::Memory(key);
}

}  // namespace qves
