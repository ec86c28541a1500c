// One table out of several.
#pragma once

#include <algorithm>
#include <array>
#include <cstddef>

namespace qves {

/// The rows of all parts, in their order.
template <class Row, std::size_t... Sizes>
constexpr std::array<Row, (Sizes + ...)> Join(const std::array<Row, Sizes>&... parts) {
  std::array<Row, (Sizes + ...)> all{};
  auto end = all.begin();
  ((end = std::copy(parts.begin(), parts.end(), end)), ...);
  return all;
}

}  // namespace qves
