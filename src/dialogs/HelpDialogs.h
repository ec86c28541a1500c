// The dialogs of the Help menu: frmAbout, frmHotKey and frmInv.
#pragma once

#include <memory>

#include "dialogs/ReadingDialog.h"

namespace qves {

enum class HelpDialog { About, HotKeys, Inverse };

/// The dialog with the document of that view (its CalcView), from the program's own folder.
std::unique_ptr<Form> MakeHelpDialog(HelpDialog which, int calcView, Services& services, DialogFrame& frame);

}  // namespace qves
