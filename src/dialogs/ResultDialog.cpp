#include "dialogs/ResultDialog.h"

#include "dialogs/DocumentFile.h"
#include "dialogs/RichText.h"
#include "services/Text.h"

namespace qves {
namespace {

constexpr ReadingDialogSpec ResultSpec = {"frmStatResult", "lraResult", 1306, 1307, true};

}  // namespace

std::unique_ptr<Form> MakeResultDialog(Services& services, DialogFrame& frame) {
  const std::string path = services.FolderLocations.ReportFile();
  const std::string report = services.Outside.Files.IsFile(path) ? ReadDocumentFile(path, services) : "";
  const RichText document = ReadPlainText(MakeReadable(report, "\t\r\n"));
  return std::make_unique<ReadingDialog>(ResultSpec, document, services, frame);
}

}  // namespace qves
