// The dialog that reads the report of the statistics: frmStatResult.
#pragma once

#include <memory>

#include "dialogs/ReadingDialog.h"

namespace qves {

/// Introduces itself, then reads the report out of its file; without one it is empty.
std::unique_ptr<Form> MakeResultDialog(Services& services, DialogFrame& frame);

}  // namespace qves
