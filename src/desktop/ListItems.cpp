#include "desktop/ListItems.h"

namespace qves {

ListItems::ListItems(const ListControl& list, QObject* parent)
    : QAbstractListModel(parent), List(&list), Rows(list.ItemCount()) {}

/// The texts of some lists begin with a blank, which is for the ear.
QVariant ListItems::data(const QModelIndex& index, int role) const {
  const bool isThere = List && index.isValid() && index.row() < List->ItemCount();
  if (role != Qt::DisplayRole || !isThere) return {};
  return QString::fromStdString(List->ItemText(index.row())).trimmed();
}

void ListItems::Change(int from, int removed, int added) {
  if (removed > 0) {
    beginRemoveRows({}, from, from + removed - 1);
    Rows -= removed;
    endRemoveRows();
  }
  if (added > 0) {
    beginInsertRows({}, from, from + added - 1);
    Rows += added;
    endInsertRows();
  }
}

void ListItems::Drop() {
  beginResetModel();
  List = nullptr;
  Rows = 0;
  endResetModel();
}

void FollowingSelection::Show(int item) {
  const QModelIndex index = model()->index(item, 0);
  QItemSelectionModel::select(QItemSelection(index, index), ClearAndSelect);
  QItemSelectionModel::setCurrentIndex(index, NoUpdate);
}

void FollowingSelection::select(const QItemSelection& wanted, SelectionFlags command) {
  if (command.testFlag(Select) && !wanted.isEmpty()) Host.ItemChosen(Model, wanted.first().top());
}

}  // namespace qves
