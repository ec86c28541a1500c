// The Statistics view: two lists of data, their statistics, and the import of a list.
#pragma once

#include <array>
#include <span>

#include "views/StateView.h"
#include "views/statistics/StatisticsEngine.h"
#include "views/statistics/TableFile.h"

namespace qves {

class frmStatistics : public StateView<StatisticsState>, private StatisticsHost {
 public:
  frmStatistics(Services& services, ViewFrame& frame);

 private:
  // View
  void Restore(const StatisticsState& calculation) override;
  Wording Announcement(const Control& control) override;
  Wording ChosenWords(const ListControl& list) const override;
  void OnListEnd(ListControl& list, int step) override;
  void OnMenu(int id) override;

  // StatisticsTelling.cpp
  void AddModes(Telling& telling) const override;
  Telling ReadBack() const override;
  void AddCount(Telling& telling, DataList list) const;
  void AddImport(Telling& telling) const;

  // StatisticsHost
  DataList TargetList() const override { return UseList2->Checked ? DataList::Second : DataList::Main; }
  bool IgnoresZero() const override { return IgnoreZero->Checked; }
  const SharedList<std::string>& Items(DataList list) const override { return *ListOf(list).Items; }
  int SelectedItem(DataList list) const override { return ListOf(list).ListIndex; }
  void AddItem(DataList list, const std::string& text) override { AppendItems(ListOf(list), {&text, 1}); }
  void RemoveItem(DataList list, int item) override { RemoveItems(ListOf(list), item, 1); }
  void ClearItems(DataList list) override {
    RemoveItems(ListOf(list), 0, ListOf(list).ItemCount());
    if (Now.Imported.Target == list) Now.Imported = {};
  }
  void Report(double degreesOfFreedom, double alpha) override;

  ListView& ListOf(DataList list) const { return *Lists[static_cast<std::size_t>(list)]; }
  void Import();
  void ImportFile(const std::string& path);
  std::string AskForFile(int title, const std::string& filter, const std::string& extension);
  void LogImport(const std::string& path, const std::string& what);

  // ForeignPoints.cpp
  struct Taken {
    std::size_t Added = 0;
    std::size_t LeftOut = 0;  ///< the list is full
  };
  bool PasteText(std::string_view text) override;
  Taken AddPoints(std::span<const double> numbers);
  void ImportTable();
  std::vector<TableColumn> ReadTableFile(const std::string& path);
  void ImportColumn(const std::string& file, const TableColumn& column);
  std::string NameOf(const TableColumn& column) const;
  std::string CountWords(int message, std::size_t count) const;
  std::string FullWords(const Taken& taken) const;

  std::array<ListView*, 2> Lists;
  CheckBox* IgnoreZero;
  CheckBox* UseList2;
};

}  // namespace qves
