#include "desktop/WidgetWords.h"

#include <QAbstractItemView>
#include <QAccessible>
#include <QFileInfo>
#include <QFileSystemModel>
#include <QMessageBox>
#include <algorithm>

#include "services/Messages.h"

namespace qves {
namespace {

/// Which message says what a widget is.
struct KindRow {
  QAccessible::Role Role;
  int Message;
};

constexpr int FileMessage = 1945;
constexpr int FolderMessage = 1946;
constexpr KindRow Kinds[] = {{QAccessible::EditableText, 1942}, {QAccessible::Button, 1943},
                             {QAccessible::ButtonMenu, 1943},   {QAccessible::ButtonDropDown, 1943},
                             {QAccessible::ComboBox, 1944},     {QAccessible::List, 1944},
                             {QAccessible::Tree, 1944},         {QAccessible::Table, 1944}};

QString Filled(const MessageText& message, int id, const QString& name) {
  return QString::fromStdString(FillPlaceholders(message(id), {name.toStdString()}));
}

QString NameWithKind(const QAccessibleInterface& read, const MessageText& message) {
  QString name = read.text(QAccessible::Name);
  if (name.endsWith(':')) name.chop(1);
  const auto* kind = std::ranges::find(Kinds, read.role(), &KindRow::Role);
  return kind == std::end(Kinds) ? name : Filled(message, kind->Message, name);
}

QStringList WordsForItem(const QModelIndex& item, const MessageText& message) {
  const QString path = item.data(QFileSystemModel::FilePathRole).toString();
  return path.isEmpty() ? QStringList(item.data().toString()) : WordsForPath(path, message);
}

}  // namespace

std::string Sentence(QStringList words) {
  words.removeAll(QString());
  words.removeDuplicates();
  return words.join(", ").toStdString();
}

QStringList WordsFor(QWidget& widget, const MessageText& message) {
  const QAccessibleInterface* read = QAccessible::queryAccessibleInterface(&widget);
  if (!read) return {};
  QStringList words{NameWithKind(*read, message)};
  // The toolkit calls a combo box what it shows.
  if (const QString value = read->text(QAccessible::Value); value != read->text(QAccessible::Name))
    words << value;
  const auto* view = qobject_cast<QAbstractItemView*>(&widget);
  return view ? words + WordsForItem(view->currentIndex(), message) : words;
}

QStringList WordsForWindow(const QWidget& window) {
  const auto* box = qobject_cast<const QMessageBox*>(&window);
  return {window.windowTitle(), box ? box->text() : QString()};
}

QStringList WordsForPath(const QString& path, const MessageText& message) {
  const QFileInfo info(path);
  return {Filled(message, info.isDir() ? FolderMessage : FileMessage, info.fileName())};
}

QString EditedPart(const QString& before, const QString& now) {
  const qsizetype shorter = std::min(before.size(), now.size());
  qsizetype head = 0;
  while (head < shorter && before[head] == now[head]) ++head;
  qsizetype tail = 0;
  while (tail < shorter - head && before[before.size() - 1 - tail] == now[now.size() - 1 - tail]) ++tail;
  const QString typed = now.mid(head, now.size() - head - tail);
  return typed.isEmpty() ? before.mid(head, before.size() - head - tail) : typed;
}

}  // namespace qves
