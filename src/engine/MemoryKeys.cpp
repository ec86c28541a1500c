// The memory group of the entry engine: MC, MR, MS, M+ and C (clear all, which keeps the memory).
#include <string>

#include "engine/EntryEngine.h"
#include "engine/Numbers.h"

namespace qves {

void EntryEngine::Memory(const PressedKey& key) {
  const std::string_view caption = key.Caption;
  if (caption == "MC") {
    MemoryCell.Clear();
  } else if (caption == "MR") {
    ReturnMemory();
  } else if (caption == "MS") {
    if (RefuseNoNumber()) return;
    MemoryCell.Store(EntryText);
  } else if (caption == "M+") {
    if (RefuseNoNumber()) return;
    MemoryCell.Add(TextToNumber(EntryText));
  } else if (caption == "C") {
    ClearAllAndTape();
  }
  Host.ShowMemory(MemoryCell.Indicator());
  Says.Say(key.SpokenName);
  LastAction = qves::LastAction::Memory;
  DecimalEntered = false;
}

/// A recall after an operator begins its second operand, as a digit does.
void EntryEngine::ReturnMemory() {
  if (SecondOperandDue()) BeginSecondOperand();
  EntryText = MemoryCell.Text();
  CurrentValue = MemoryCell.Value();
  ErrorState = false;
  Show();
}

void EntryEngine::ClearAllAndTape() {
  ClearAll();
  TapeText.clear();
  Host.ClearTape();
}

/// A display that is no number cannot be stored: said, and nothing changes.
bool EntryEngine::RefuseNoNumber() {
  if (!ErrorState && ParseNumber(EntryText)) return false;
  Says.SayError();
  return true;
}

}  // namespace qves
