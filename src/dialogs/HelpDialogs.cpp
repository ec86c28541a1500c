#include "dialogs/HelpDialogs.h"

#include <array>

#include "dialogs/DocumentFile.h"
#include "dialogs/RichText.h"
#include "services/Text.h"

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

/// Soft hyphens, which only tell where a word may be divided, are left out: a voice might name them.
RichText ReadDocument(const std::string& path, Services& services) {
  RichText document = ReadRichText(ReadDocumentFile(path, services));
  for (Paragraph& paragraph : document.Paragraphs)
    for (TextRun& run : paragraph.Runs) run.Text = ReplaceAll(run.Text, "\u00AD", "");
  return document;
}

}  // namespace

std::unique_ptr<Form> MakeHelpDialog(HelpDialog which, int calcView, Services& services, DialogFrame& frame) {
  const HelpRow& row = HelpTable[static_cast<std::size_t>(which)];
  const std::string folder = services.Outside.Directories.ProgramFolder();
  const std::string_view document = row.Documents[static_cast<std::size_t>(calcView)];
  return std::make_unique<ReadingDialog>(
      row.Dialog, ReadDocument(folder + "/" + std::string(document), services), services, frame);
}

}  // namespace qves
