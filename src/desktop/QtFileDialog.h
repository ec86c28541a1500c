// The toolkit's own dialog in which the user chooses a file.
#pragma once

#include "platform/FixedSizeFileDialog.h"

namespace qves {

class QtFileDialog : public FixedSizeFileDialog {
 public:
  std::string Show(const FileDialogSpec& spec) override;
};

}  // namespace qves
