// The memory group of the entry engine: MC, MR, MS, M+, C (clear all, which keeps the memory), and Pi, which
// acts as a recalled number does.
#include <string>

#include "engine/Buttons.h"
#include "engine/EntryEngine.h"
#include "formulas/Numbers.h"

namespace qves {

struct EntryEngine::MemoryRow {
  std::string_view Caption;
  void (EntryEngine::*Act)();
  bool WantsNumber;  ///< refused while the display shows none
};

const EntryEngine::MemoryRow EntryEngine::MemoryTable[] = {
    {Buttons::MemoryClear.Caption, &EntryEngine::ClearMemory, false},
    {Buttons::MemoryRecall.Caption, &EntryEngine::ReturnMemory, false},
    {Buttons::MemoryStore.Caption, &EntryEngine::StoreMemory, true},
    {Buttons::MemoryAdd.Caption, &EntryEngine::AddMemory, true},
    {Buttons::ClearAll.Caption, &EntryEngine::ClearAll, false},
    {Buttons::Pi.Caption, &EntryEngine::RecallPi, false},
};

void EntryEngine::Memory(const PressedKey& key) {
  for (const MemoryRow& row : MemoryTable) {
    if (row.Caption != key.Caption) continue;
    if (row.WantsNumber && RefuseNoNumber()) return;
    (this->*row.Act)();
  }
  Host.ShowMemory(Now.MemoryCell.Indicator());
  Says.Say(key.SpokenName);
  FinishMemoryKey();
}

void EntryEngine::FinishMemoryKey() {
  Now.LastAction = ActionKind::Memory;
  Now.DecimalEntered = false;
}

void EntryEngine::ClearMemory() {
  Now.MemoryCell.Clear();
}

void EntryEngine::StoreMemory() {
  Now.MemoryCell.Store(Now.DisplayText());
  OnStored();
}

void EntryEngine::AddMemory() {
  const double sum = Checked(ValueOf(RecalledText()) + ValueOf(Now.DisplayText()));
  Now.MemoryCell.Store(WriteNumber(sum));
  OnStored();
}

void EntryEngine::ReturnMemory() {
  std::string text = RecalledText();
  const double value = ValueOf(text);
  Recall(std::move(text), value);
}

void EntryEngine::RecallPi() {
  Recall(NumberToText(Pi), Pi);
}

void EntryEngine::TakeText(std::string_view text, int base) {
  std::string own = InOwnBase(text, base);
  const double value = ValueOf(own);
  Recall(std::move(own), value);
  FinishMemoryKey();
}

void EntryEngine::TakeNumber(double value) {
  TakeText(WriteNumber(value), Base());
  if (Base() == NumberBase::Decimal) Now.CurrentValue = value;
}

std::string EntryEngine::InOwnBase(std::string_view text, int base) const {
  return text == "0" ? std::string(text) : ConvertBase(base, Base(), text);
}

/// After an operator a recalled number begins its second operand, as a digit does.
void EntryEngine::Recall(std::string text, double value) {
  if (SecondOperandDue()) BeginSecondOperand();
  Now.EntryText = std::move(text);
  Now.CurrentValue = value;
  Now.ErrorState = false;
  Show();
}

/// A display that is no number cannot be stored: said, and nothing changes.
bool EntryEngine::RefuseNoNumber() {
  if (!Now.ErrorState && ReadNumber(Now.DisplayText())) return false;
  Says.SayError();
  return true;
}

}  // namespace qves
