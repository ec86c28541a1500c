#include "desktop/QtFileDialog.h"

#include <QAbstractItemView>
#include <QAccessible>
#include <QApplication>
#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QMessageBox>
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
QStringList WordsFor(QWidget& widget) {
  QAccessibleInterface* read = QAccessible::queryAccessibleInterface(&widget);
  if (!read) return {};
  QStringList words{read->text(QAccessible::Name), read->text(QAccessible::Value)};
  if (const auto* view = qobject_cast<QAbstractItemView*>(&widget))
    words << view->currentIndex().data().toString();
  return words;
}

/// And of a window that comes to the front.
QStringList WordsForWindow(const QWidget& window) {
  const auto* message = qobject_cast<const QMessageBox*>(&window);
  return {window.windowTitle(), message ? message->text() : QString()};
}

QString Sentence(QStringList words) {
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
  dialog.setViewMode(QFileDialog::List);
  dialog.setFileMode(QFileDialog::ExistingFile);
  dialog.setNameFilters(NameFilters(spec.Filter));
  dialog.setDefaultSuffix(QString::fromStdString(spec.DefaultExtension));
  Dialog = &dialog;
  SpeakMoves();
  const bool isChosen = dialog.exec() == QDialog::Accepted;
  Dialog = nullptr;
  return isChosen ? dialog.selectedFiles().value(0).toStdString() : "";
}

void QtFileDialog::SpeakMoves() {
  const auto speak = [this](const QStringList& words) {
    if (const QString all = Sentence(words); !all.isEmpty()) Speak(all.toStdString());
  };
  const QWidget* before = nullptr;
  QObject::connect(qApp, &QApplication::focusChanged, Dialog,
                   [this, speak, before](QWidget*, QWidget* now) mutable {
                     if (!now || !Dialog || !Dialog->isVisible()) return;
                     const bool isSameWindow = std::exchange(before, now->window()) == now->window();
                     speak((isSameWindow ? QStringList() : WordsForWindow(*now->window())) + WordsFor(*now));
                   });
  QObject::connect(Dialog, &QFileDialog::currentChanged,
                   [speak](const QString& path) { speak({QFileInfo(path).fileName()}); });
}

void QtFileDialog::CloseFront() {
  QWidget* front = QApplication::activePopupWidget();
  if (!front) front = QApplication::activeModalWidget();
  if (front) front->close();
}

}  // namespace qves
