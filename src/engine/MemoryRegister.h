// The one memory register, kept as text.
#pragma once

#include <string>
#include <string_view>

namespace qves {

class MemoryRegister {
 public:
  const std::string& Text() const { return MemoryText; }
  /// "M" while something has been stored, "" after a clear.
  std::string_view Indicator() const { return Stored ? "M" : ""; }

  void Clear();
  /// Keeps the text as it stands, a trailing point included.
  void Store(std::string_view text);
  bool operator==(const MemoryRegister&) const = default;

 private:
  std::string MemoryText = "0";
  bool Stored = false;
};

}  // namespace qves
