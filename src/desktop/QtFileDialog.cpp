#include "desktop/QtFileDialog.h"

#include <QApplication>
#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QLineEdit>
#include <memory>
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

constexpr int HelpOfDialog = 1947;

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

void QtFileDialog::Speak(const QStringList& words) const {
  if (const std::string all = Sentence(words); !all.empty()) Says.Speak(all);
}

void QtFileDialog::SpeakMoves() {
  const QWidget* before = nullptr;
  QObject::connect(qApp, &QApplication::focusChanged, Dialog, [this, before](QWidget*, QWidget* now) mutable {
    if (!now || !Dialog || !Dialog->isVisible()) return;
    const bool isSameWindow = std::exchange(before, now->window()) == now->window();
    Speak((isSameWindow ? QStringList() : WordsForWindow(*now->window())) + WordsFor(*now, Says.Message));
  });
  QObject::connect(Dialog, &QFileDialog::currentChanged,
                   [this](const QString& path) { Speak(WordsForPath(path, Says.Message)); });
  for (QLineEdit* edit : Dialog->findChildren<QLineEdit*>()) SpeakTyping(*edit);
}

/// What the dialog itself writes into the edit is said where it is chosen.
void QtFileDialog::SpeakTyping(QLineEdit& edit) {
  const auto before = std::make_shared<QString>(edit.text());
  QObject::connect(&edit, &QLineEdit::textEdited, [this, before](const QString& now) {
    const std::string part = EditedPart(*before, now).toStdString();
    if (!part.empty()) Says.Speak(Says.Character(part));
  });
  QObject::connect(&edit, &QLineEdit::textChanged, [before](const QString& now) { *before = now; });
}

bool QtFileDialog::KeyDown(const KeyEvent& event) {
  QWidget* focused = QApplication::focusWidget();
  if (!IsOpen() || !focused || event.Shift != NoShift) return false;
  if (event.Code == KeyF1) Says.Speak(Says.Message(HelpOfDialog));
  if (event.Code == KeyF7) Speak(WordsFor(*focused, Says.Message));
  return event.Code == KeyF1 || event.Code == KeyF7;
}

void QtFileDialog::CloseFront() {
  QWidget* front = QApplication::activePopupWidget();
  if (!front) front = QApplication::activeModalWidget();
  if (front) front->close();
}

}  // namespace qves
