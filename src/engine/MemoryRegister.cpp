#include "engine/MemoryRegister.h"

namespace qves {

void MemoryRegister::Clear() {
  MemoryText = "0";
  Stored = false;
}

void MemoryRegister::Store(std::string_view text) {
  MemoryText = text;
  Stored = true;
}

}  // namespace qves
