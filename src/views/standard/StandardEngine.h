// The engine of the Standard view: the entry engine with a tape, one line for each calculation.
#pragma once

#include "engine/EntryEngine.h"
#include "views/standard/StandardState.h"

namespace qves {

/// Where the tape is shown.
class TapeHost {
 public:
  virtual ~TapeHost() = default;
  /// A line was added to the tape; it ends with "\r\n".
  virtual void AppendTape(std::string_view line) = 0;
  virtual void ClearTape() = 0;
};

class StandardEngine : public EntryEngine {
 public:
  StandardEngine(StandardState& state, EngineHost& host, TapeHost& tapeHost, Announcer& announcer);

  void Memory(const PressedKey& key) override;

 protected:
  std::span<const LineShape> LineShapes() const override;
  void Finish(FinishedCalculation calculation) override;
  void OnClearAll() override { Now.TapeLine.clear(); }

 private:
  TapeHost& TapeShown;
  StandardState& Now;
};

}  // namespace qves
