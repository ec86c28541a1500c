#include "engine/MemoryRegister.h"

#include "engine/Numbers.h"

namespace qves {

void MemoryRegister::Clear() {
  MemoryText = "0";
  Stored = false;
}

void MemoryRegister::Store(std::string_view text) {
  MemoryText = text;
  Stored = true;
}

void MemoryRegister::Add(double number) {
  Store(NumberToText(Checked(Value() + number)));
}

double MemoryRegister::Value() const {
  return TextToNumber(MemoryText);
}

}  // namespace qves
