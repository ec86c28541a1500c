// The engine of the Standard view: the entry engine with a tape, one line for each calculation.
#pragma once

#include "engine/EntryEngine.h"

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
  StandardEngine(EngineHost& host, TapeHost& tapeHost, Announcer& announcer);
  StateFields Fields() const override;

 protected:
  void Evaluate(double first, double& second, std::string_view op) override;
  void OnClearAll() override { TapeLine.clear(); }
  void ClearEverything() override;

 private:
  TapeHost& TapeShown;
  std::string TapeLine;
  std::string TapeText;
};

}  // namespace qves
