#include "dialogs/HelpDialogs.h"

#include <array>

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

/// They only tell where a word may be divided: a voice might name them.
void DropSoftHyphens(Paragraph& paragraph) {
  for (TextRun& run : paragraph.Runs) run.Text = ReplaceAll(run.Text, "\u00AD", "");
}

/// A document that cannot be read is empty.
ReadingMatter ReadDocument(const std::string& path, FileStore& files) {
  std::string error;
  ReadingMatter matter{ReadRichText(files.Read(path, error).value_or("")), ""};
  for (Paragraph& paragraph : matter.Document.Paragraphs) {
    if (&paragraph != &matter.Document.Paragraphs.front()) matter.Text += '\n';
    DropSoftHyphens(paragraph);
    matter.Text += PlainText(paragraph);
  }
  return matter;
}

}  // namespace

std::unique_ptr<Form> MakeHelpDialog(HelpDialog which, int calcView, Services& services, DialogFrame& frame) {
  const HelpRow& row = HelpTable[static_cast<std::size_t>(which)];
  const std::string folder = services.Outside.Directories.ProgramFolder();
  const std::string_view document = row.Documents[static_cast<std::size_t>(calcView)];
  return std::make_unique<ReadingDialog>(
      row.Dialog, ReadDocument(folder + "/" + std::string(document), services.Outside.Files), services,
      frame);
}

}  // namespace qves
