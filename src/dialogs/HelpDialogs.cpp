#include "dialogs/HelpDialogs.h"

#include <array>

namespace qves {
namespace {

struct HelpRow {
  ReadingDialogSpec Dialog;
  std::array<std::string_view, 4> Documents;  ///< by CalcView
};

// frmInv has the title and the help text of the hot keys: this is wanted.
constexpr HelpRow HelpTable[] = {
    {{"frmAbout", "lraAbout", 1300, 1301},
     {"AboutCalculator.rtf", "AboutStat.rtf", "AboutStd.rtf", "AboutBsn.rtf"}},
    {{"frmHotKey", "lraHotKey", 1302, 1303},
     {"HotKey.rtf", "StatHotKey.rtf", "StdHotKey.rtf", "BsnHotKey.rtf"}},
    {{"frmInv", "lraInv", 1302, 1303}, {"Inv.rtf", "Inv.rtf", "Inv.rtf", "Inv.rtf"}},
};

}  // namespace

std::unique_ptr<Form> MakeHelpDialog(HelpDialog which, int calcView, Services& services, DialogFrame& frame) {
  const HelpRow& row = HelpTable[static_cast<std::size_t>(which)];
  const std::string folder = services.Outside.Directories.ProgramFolder();
  const std::string_view document = row.Documents[static_cast<std::size_t>(calcView)];
  return std::make_unique<ReadingDialog>(row.Dialog, folder + "/" + std::string(document), services, frame);
}

}  // namespace qves
