#include "desktop/QtFileDialog.h"

#include <QAbstractItemView>
#include <QAccessible>
#include <QApplication>
#include <QFileDialog>
#include <utility>

namespace qves {
namespace {

/// "Text Files|*.txt" as the toolkit writes it, "Text Files (*.txt)"; a list, a filter an entry.
QStringList NameFilters(const std::string& filter) {
  const QStringList parts = QString::fromStdString(filter).split('|');
  QStringList filters;
  for (qsizetype i = 0; i + 1 < parts.size(); i += 2) {
    QString patterns = parts[i + 1];
    filters << parts[i] + " (" + patterns.replace(';', ' ') + ")";
  }
  return filters;
}

/// The folder, or the nearest one around it that exists.
QString ExistingFolder(const std::string& folder) {
  QFileInfo info(folder.empty() ? QDir::homePath() : QString::fromStdString(folder));
  while (!info.isDir() && !info.isRoot()) info.setFile(info.absolutePath());
  return info.absoluteFilePath();
}

/// What a screen reader would say of the widget: its name, and what it shows or has chosen.
QString WordsFor(QWidget& widget) {
  QAccessibleInterface* read = QAccessible::queryAccessibleInterface(&widget);
  if (!read) return {};
  QStringList words{read->text(QAccessible::Name), read->text(QAccessible::Value)};
  if (const auto* view = qobject_cast<QAbstractItemView*>(&widget))
    words << view->currentIndex().data().toString();
  words.removeAll(QString());
  words.removeDuplicates();
  return words.join(", ");
}

}  // namespace

std::string QtFileDialog::Show(const FileDialogSpec& spec) {
  if (IsOpen()) return "";
  QFileDialog dialog(Owner(), QString::fromStdString(spec.Title), ExistingFolder(spec.InitialFolder));
  // The toolkit's own widgets, which every screen reader can read, and which change no file.
  dialog.setOptions(QFileDialog::DontUseNativeDialog | QFileDialog::ReadOnly);
  dialog.setFileMode(QFileDialog::ExistingFile);
  dialog.setNameFilters(NameFilters(spec.Filter));
  dialog.setDefaultSuffix(QString::fromStdString(spec.DefaultExtension));
  dialog.setWindowModality(Qt::WindowModal);
  Dialog = &dialog;
  SpeakMoves();
  const bool isChosen = dialog.exec() == QDialog::Accepted;
  Dialog = nullptr;
  return isChosen ? dialog.selectedFiles().value(0).toStdString() : "";
}

void QtFileDialog::SpeakMoves() {
  const auto speak = [this](const QString& words) {
    if (!words.isEmpty()) Speak(words.toStdString());
  };
  QObject::connect(qApp, &QApplication::focusChanged, Dialog,
                   [speak, title = Dialog->windowTitle()](QWidget*, QWidget* now) mutable {
                     if (!now) return;
                     const QString opening = std::exchange(title, QString());
                     speak(opening.isEmpty() ? WordsFor(*now) : opening + ". " + WordsFor(*now));
                   });
  QObject::connect(Dialog, &QFileDialog::currentChanged,
                   [speak](const QString& path) { speak(QFileInfo(path).fileName()); });
}

void QtFileDialog::CloseFront() {
  QWidget* front = QApplication::activePopupWidget();
  if (!front) front = QApplication::activeModalWidget();
  if (front) front->close();
}

}  // namespace qves
