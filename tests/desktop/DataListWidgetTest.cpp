#include <QAbstractItemModelTester>
#include <QListView>
#include <QScrollBar>

#include "WindowFixture.h"

namespace qves {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

constexpr int MostItems = 32767;

std::vector<std::string> Numbers(int count) {
  std::vector<std::string> items;
  for (int i = 0; i < count; ++i) items.push_back(std::to_string(i));
  return items;
}

class DataListWidgetTest : public WindowFixture {
 protected:
  QListView& List() { return Find<QListView>("lvwData"); }
  std::vector<std::string> ShownItems() {
    std::vector<std::string> texts;
    for (int row = 0; row < List().model()->rowCount(); ++row)
      texts.push_back(List().model()->index(row, 0).data().toString().toStdString());
    return texts;
  }
  /// The row shown as selected, NoItem when none is; the current one must be the same.
  int SelectedRow() {
    const QModelIndexList rows = List().selectionModel()->selectedRows();
    const int selected = rows.isEmpty() ? NoItem : rows.first().row();
    EXPECT_LE(rows.size(), 1);
    EXPECT_EQ(List().currentIndex().row(), selected);
    return selected;
  }
  bool IsInSight(int row) {
    const QRect rect = List().visualRect(List().model()->index(row, 0));
    return List().viewport()->rect().contains(rect.center());
  }
};

TEST_F(DataListWidgetTest, ItemsComeAndGoAtAnyPlace) {
  // Fails when what the toolkit is told and what it can read differ at any time.
  const QAbstractItemModelTester tester(List().model(),
                                        QAbstractItemModelTester::FailureReportingMode::Fatal);
  const auto expect = [&](const std::vector<std::string>& items, int chosen) {
    EXPECT_EQ(ShownItems(), items);
    EXPECT_EQ(SelectedRow(), chosen);
    EXPECT_THAT(Shown.Take(), IsEmpty());
  };
  expect({}, NoItem);
  Shown.AddItems({"1", "2", "3", "4", "5"});
  expect({"1", "2", "3", "4", "5"}, 0);
  Shown.Remove(2, 1);
  expect({"1", "2", "4", "5"}, 0);
  Shown.PlaceData(2);
  Shown.Remove(0, 1);
  expect({"2", "4", "5"}, 1);
  Shown.Remove(1, 1);
  expect({"2", "5"}, 1);
  Shown.AddItems({"6"});
  Shown.Remove(1, 2);
  expect({"2"}, 0);
  Shown.Remove(0, 1);
  expect({}, NoItem);
}

TEST_F(DataListWidgetTest, ScreenReaderHearsOfNoItemBetween) {
  Shown.AddItems(Numbers(5));
  Shown.PlaceData(2);
  std::vector<int> current;
  QObject::connect(List().selectionModel(), &QItemSelectionModel::currentChanged,
                   [&](const QModelIndex& now) {
                     if (now.isValid()) current.push_back(now.row());
                   });
  Shown.Remove(2, 1);
  Shown.PlaceData(3);
  Shown.Remove(3, 1);
  EXPECT_THAT(current, ElementsAre(2, 3, 2));
}

TEST_F(DataListWidgetTest, ListThatIsFullBeforeItIsShown) {
  TestForm next("Next");
  next.AddItems({"7", "8"});
  next.PlaceData(1);
  Window.ShowForm(next);
  const auto& list = Find<QListView>("lvwData", next);
  EXPECT_EQ(list.model()->rowCount(), 2);
  EXPECT_EQ(list.currentIndex().row(), 1);
  Window.ShowForm(Shown);
}

TEST_F(DataListWidgetTest, FullListIsNotReadButWhereItIsSeen) {
  constexpr int InSight = 200;  // a few readings of each item that fits
  Shown.AddItems(Numbers(MostItems - 1));
  Settle();
  EXPECT_LT(Shown.Data().Read, InSight);
  for (const int chosen : {MostItems / 2, MostItems - 3, 0}) {
    Shown.Data().Read = 0;
    Shown.PlaceData(chosen);
    Shown.Remove(chosen, 1);
    Shown.AddItems({"new"});
    Settle();
    EXPECT_LT(Shown.Data().Read, InSight);
    EXPECT_EQ(SelectedRow(), chosen);
    EXPECT_TRUE(IsInSight(chosen));
  }
  EXPECT_EQ(List().model()->rowCount(), MostItems - 1);
}

TEST_F(DataListWidgetTest, ChosenItemStaysInSight) {
  Shown.AddItems(Numbers(1000));
  Shown.PlaceData(500);
  Settle();
  EXPECT_TRUE(IsInSight(500));
  Window.resize(Window.width(), 2 * Window.height());
  Settle();
  List().scrollToTop();
  Window.resize(Window.minimumSizeHint());
  Settle();
  EXPECT_TRUE(IsInSight(500));
  EXPECT_TRUE(List().verticalScrollBar()->isVisible());
}

}  // namespace
}  // namespace qves
