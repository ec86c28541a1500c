#include "desktop/ListItems.h"

namespace qves {

ListItems::ListItems(const ListControl& list, QObject* parent)
    : QAbstractListModel(parent), List(&list), Rows(list.ItemCount()) {}

int ListItems::ItemOf(int row) const {
  if (row < Pending.From) return row;
  if (row < Pending.From + Pending.Removed) return NoItem;
  return row - Pending.Removed + Pending.Added;
}

/// The texts of some lists begin with a blank, which is for the ear.
QVariant ListItems::data(const QModelIndex& index, int role) const {
  if (role != Qt::DisplayRole || !List || !index.isValid()) return {};
  const int item = ItemOf(index.row());
  if (item == NoItem || item >= List->ItemCount()) return {};
  return QString::fromStdString(List->ItemText(item)).trimmed();
}

void ListItems::Change(int from, int removed, int added) {
  Pending = {from, removed, added};
  if (removed > 0) {
    beginRemoveRows({}, from, from + removed - 1);
    Rows -= removed;
    Pending.Removed = 0;
    endRemoveRows();
  }
  if (added > 0) {
    beginInsertRows({}, from, from + added - 1);
    Rows += added;
    Pending.Added = 0;
    endInsertRows();
  }
  Pending = {};
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
