#include "dialogs/ResultDialog.h"

#include "dialogs/RichText.h"
#include "services/Text.h"

namespace qves {
namespace {

constexpr ReadingDialogSpec ResultSpec = {"frmStatResult", "lraResult", 1306, 1307, true};

}  // namespace

std::unique_ptr<Form> MakeResultDialog(Services& services, DialogFrame& frame) {
  std::string error;
  const auto report = services.Outside.Files.Read(services.FolderLocations.ReportFile(), error);
  const std::string text = MakeReadable(report.value_or(""), "\t\r\n");
  return std::make_unique<ReadingDialog>(ResultSpec, ReadPlainText(text), services, frame);
}

}  // namespace qves
