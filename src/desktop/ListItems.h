// The items of a list for the toolkit's views, read where the form has them, and the form's choice among
// them.
#pragma once

#include <QAbstractListModel>
#include <QItemSelectionModel>

#include "desktop/ControlView.h"

namespace qves {

class ListItems : public QAbstractListModel {
 public:
  ListItems(const ListControl& list, QObject* parent);

  int rowCount(const QModelIndex& parent = {}) const override { return parent.isValid() ? 0 : Rows; }
  QVariant data(const QModelIndex& index, int role) const override;

  /// From the item `from` on, `removed` items have gone and `added` ones have come in their place.
  void Change(int from, int removed, int added);
  /// The list is about to be destroyed: from now on there are no items.
  void Drop();

 private:
  struct ListChange {
    int From = 0;
    int Removed = 0;
    int Added = 0;
  };

  /// Where the list has the row now; NoItem: it has gone.
  int ItemOf(int row) const;

  const ListControl* List;
  int Rows;            ///< as the toolkit knows them: it hears of a change after the list has changed
  ListChange Pending;  ///< what the toolkit has not yet heard of
};

/// A selection that only the form changes. What others want to select, an accessibility client with the
/// toolkit's own steps of it, goes to the host.
class FollowingSelection : public QItemSelectionModel {
 public:
  FollowingSelection(ListControl& list, ControlHost& host, QAbstractItemModel& items, QObject* parent)
      : QItemSelectionModel(&items, parent), Model(list), Host(host) {}

  /// Selects that item; NoItem: none.
  void Show(int item);

  using QItemSelectionModel::select;
  void select(const QItemSelection& wanted, SelectionFlags command) override;
  void setCurrentIndex(const QModelIndex& index, SelectionFlags command) override { select(index, command); }

 private:
  ListControl& Model;
  ControlHost& Host;
};

}  // namespace qves
