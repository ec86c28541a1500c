// The clipboard that all programs share.
#pragma once

#include <string>
#include <string_view>

namespace qves {

class Clipboard {
 public:
  virtual ~Clipboard() = default;
  /// The text that it holds in UTF-8, its first `most` bytes where it is longer; "" when it holds no text.
  virtual std::string ReadText(std::size_t most) = 0;
  virtual void WriteText(std::string_view text) = 0;
};

}  // namespace qves
