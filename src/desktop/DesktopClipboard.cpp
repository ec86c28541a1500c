#include "desktop/DesktopClipboard.h"

#include <QClipboard>
#include <QGuiApplication>

namespace qves {

/// No character takes fewer bytes in UTF-8 than the toolkit counts for it.
std::string DesktopClipboard::ReadText(std::size_t most) {
  const QString text = QGuiApplication::clipboard()->text();
  return text.left(static_cast<qsizetype>(most)).toStdString().substr(0, most);
}

void DesktopClipboard::WriteText(std::string_view text) {
  QGuiApplication::clipboard()->setText(QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size())));
}

}  // namespace qves
