#include "dialogs/ResultDialog.h"

#include "dialogs/RichText.h"

namespace qves {
namespace {

constexpr ReadingDialogSpec ResultSpec = {"frmStatResult", "lraResult", 1306, 1307, true};

}  // namespace

std::unique_ptr<Form> MakeResultDialog(Services& services, DialogFrame& frame) {
  std::string error;
  std::string report = services.Outside.Files.Read(services.FolderLocations.ReportFile(), error).value_or("");
  RichText document = ReadPlainText(report);
  if (document.Paragraphs.empty()) report.clear();
  return std::make_unique<ReadingDialog>(ResultSpec, ReadingMatter{std::move(document), std::move(report)},
                                         services, frame);
}

}  // namespace qves
