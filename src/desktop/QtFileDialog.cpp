#include "desktop/QtFileDialog.h"

#include <QFileDialog>

namespace qves {

std::string QtFileDialog::Show(const FileDialogSpec& spec) {
  return QFileDialog::getOpenFileName(nullptr, QString::fromStdString(spec.Title),
                                      QString::fromStdString(spec.InitialFolder))
      .toStdString();
}

}  // namespace qves
