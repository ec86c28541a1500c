#include "dialogs/HelpDialogs.h"

#include <array>

#include "dialogs/RichText.h"
#include "dialogs/Sentences.h"
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

/// Cuts off what is beyond any help document: a window would be busy with it for minutes.
void CutShort(std::string& source) {
  constexpr std::size_t largest = 4'000'000;
  if (source.size() > largest) source.resize(PreviousCharacter(source, largest + 1));
}

/// A document that cannot be read is empty. Soft hyphens, which only tell where a word may be divided, are
/// left out: a voice might name them.
RichText ReadDocument(const std::string& path, FileStore& files) {
  std::string error;
  std::string source = files.Read(path, error).value_or("");
  CutShort(source);
  RichText document = ReadRichText(source);
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
      row.Dialog, ReadDocument(folder + "/" + std::string(document), services.Outside.Files), services,
      frame);
}

}  // namespace qves
