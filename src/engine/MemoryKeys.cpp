// The memory group of the entry engine: MC, MR, MS, M+ and C (clear all, which keeps the memory).
#include <string>

#include "engine/EntryEngine.h"
#include "engine/Numbers.h"

namespace qves {

struct EntryEngine::MemoryRow {
  std::string_view Caption;
  void (EntryEngine::*Act)();
  bool WantsNumber;  ///< refused while the display shows none
};

const EntryEngine::MemoryRow EntryEngine::MemoryTable[] = {
    {"MC", &EntryEngine::ClearMemory, false},    {"MR", &EntryEngine::ReturnMemory, false},
    {"MS", &EntryEngine::StoreMemory, true},     {"M+", &EntryEngine::AddMemory, true},
    {"C", &EntryEngine::ClearAllAndTape, false},
};

void EntryEngine::Memory(const PressedKey& key) {
  for (const MemoryRow& row : MemoryTable) {
    if (row.Caption != key.Caption) continue;
    if (row.WantsNumber && RefuseNoNumber()) return;
    (this->*row.Act)();
  }
  Host.ShowMemory(MemoryCell.Indicator());
  Says.Say(key.SpokenName);
  LastAction = qves::LastAction::Memory;
  DecimalEntered = false;
}

void EntryEngine::ClearMemory() {
  MemoryCell.Clear();
}

void EntryEngine::StoreMemory() {
  MemoryCell.Store(EntryText);
}

void EntryEngine::AddMemory() {
  MemoryCell.Add(TextToNumber(EntryText));
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
