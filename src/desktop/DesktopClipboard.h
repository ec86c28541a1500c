// The desktop's clipboard.
#pragma once

#include "platform/Clipboard.h"

namespace qves {

class DesktopClipboard : public Clipboard {
 public:
  std::string ReadText(std::size_t most) override;
  void WriteText(std::string_view text) override;
};

}  // namespace qves
