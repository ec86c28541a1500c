// What is said of the widgets of the toolkit's own dialogs.
#pragma once

#include <QStringList>
#include <QWidget>
#include <functional>

class QModelIndex;

namespace qves {

/// The text of that message.
using MessageText = std::function<std::string(int id)>;

/// The words as one text; what is empty or said already is left out.
std::string Sentence(QStringList words);

/// Of the widget that has the focus: its name with what it is, and what it shows or has chosen.
QStringList WordsFor(QWidget& widget, const MessageText& message);
/// Of a window that comes to the front.
QStringList WordsForWindow(const QWidget& window);
/// Of a file or a folder.
QStringList WordsForPath(const QString& path, const MessageText& message);

/// What has been typed into a text; or, where it has only become shorter, deleted from it.
QString EditedPart(const QString& before, const QString& now);

}  // namespace qves
