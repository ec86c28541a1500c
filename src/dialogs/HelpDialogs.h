// The dialogs of the Help menu: frmAbout, frmHotKey and frmInv.
#pragma once

#include <memory>

#include "dialogs/ReadingDialog.h"

namespace qves {

enum class HelpDialog { About, HotKeys, Inverse };

/// The dialog with the document of that name in the program's own folder.
std::unique_ptr<Form> MakeHelpDialog(HelpDialog which, std::string_view document, Services& services,
                                     DialogFrame& frame);

}  // namespace qves
