// A file dialog that is answered before it is shown.
#pragma once

#include <string>
#include <utility>

#include "platform/FixedSizeFileDialog.h"

namespace qves {

class AnsweredFileDialog : public FixedSizeFileDialog {
 public:
  std::string Answer;  ///< what the next dialog returns; "" is a cancel

  std::string Show(const FileDialogSpec&) override { return std::exchange(Answer, {}); }
};

}  // namespace qves
