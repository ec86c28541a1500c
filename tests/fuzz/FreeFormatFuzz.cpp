// Whatever the bytes: the reader ends, and gives finite numbers and a line that the text has.
#include <algorithm>
#include <cmath>
#include <cstdint>
#include <cstdlib>

#include "views/statistics/FreeFormat.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::string_view text(reinterpret_cast<const char*>(data), size);
  std::size_t taken = 0;
  const auto fault = qves::ReadFreeFormat(text, [&](double value) {
    if (!std::isfinite(value)) std::abort();
    return ++taken < 1000;
  });
  // A number takes a byte at least, an empty field the comma before it.
  if (taken > size) std::abort();
  const auto ends = std::ranges::count_if(text, [](char c) { return c == '\r' || c == '\n'; });
  if (fault && (fault->Line < 1 || fault->Line > ends + 1 || fault->Reason.empty())) std::abort();
  return 0;
}
