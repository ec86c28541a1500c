#include "dialogs/HelpDialogs.h"

#include "dialogs/DocumentFile.h"
#include "dialogs/RichText.h"
#include "text/Text.h"

namespace qves {
namespace {

// frmInv has the title and the help text of the hot keys: this is wanted.
constexpr ReadingDialogSpec HelpTable[] = {
    {"frmAbout", "lraAbout", 1300, 1301},
    {"frmHotKey", "lraHotKey", 1302, 1303},
    {"frmInv", "lraInv", 1302, 1303},
};

/// Soft hyphens, which only tell where a word may be divided, are left out: a voice might name them.
RichText ReadDocument(const std::string& path, Services& services) {
  RichText document = ReadRichText(ReadDocumentFile(path, services));
  for (Paragraph& paragraph : document.Paragraphs)
    for (TextRun& run : paragraph.Runs) run.Text = ReplaceAll(run.Text, "\u00AD", "");
  return document;
}

}  // namespace

std::unique_ptr<Form> MakeHelpDialog(HelpDialog which, std::string_view document, Services& services,
                                     DialogFrame& frame) {
  const std::string path = services.Outside.Directories.ProgramFolder() + "/" + std::string(document);
  return std::make_unique<ReadingDialog>(HelpTable[static_cast<std::size_t>(which)],
                                         ReadDocument(path, services), services, frame);
}

}  // namespace qves
