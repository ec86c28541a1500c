#include "dialogs/ResultDialog.h"

#include "dialogs/DocumentFile.h"
#include "dialogs/RichText.h"

namespace qves {
namespace {

constexpr ReadingDialogSpec ResultSpec = {"frmStatResult", "lraResult", 1306, 1307, true};

}  // namespace

std::unique_ptr<Form> MakeResultDialog(Services& services, DialogFrame& frame) {
  const std::string path = services.FolderLocations.ReportFile();
  const std::string report = services.Outside.Files.IsFile(path) ? ReadDocumentFile(path, services) : "";
  return std::make_unique<ReadingDialog>(ResultSpec, ReadPlainText(report), services, frame);
}

}  // namespace qves
