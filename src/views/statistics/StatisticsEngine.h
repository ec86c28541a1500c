// The engine of the Statistics view: an entry for two lists of data, and what is asked of them.
#pragma once

#include <string>

#include "engine/EntryEngine.h"
#include "views/statistics/StatisticsState.h"

namespace qves {

/// The most points that a list of data holds.
inline constexpr std::size_t MostPoints = 32767;

/// The messages that tell what was done with a list.
struct ListWords {
  int Added;
  int Removed;
  int Cleared;
  int Empty;
};
const ListWords& WordsOf(DataList list);

/// Where the data are, and what is done with them all.
class StatisticsHost {
 public:
  virtual ~StatisticsHost() = default;
  /// The list that keys add to and take from.
  virtual DataList TargetList() const = 0;
  virtual bool IgnoresZero() const = 0;
  virtual const SharedList<std::string>& Items(DataList list) const = 0;
  /// Of the selected item, from 0; below 0 when none is.
  virtual int SelectedItem(DataList list) const = 0;
  virtual void AddItem(DataList list, const std::string& text) = 0;
  virtual void RemoveItem(DataList list, int item) = 0;
  virtual void ClearItems(DataList list) = 0;
  /// Computes the statistics, writes their report and opens the dialog that reads it.
  virtual void Report(double degreesOfFreedom, double alpha) = 0;
};

class StatisticsEngine : public EntryEngine {
 public:
  StatisticsEngine(StatisticsState& state, EngineHost& host, StatisticsHost& data, Announcer& announcer);

  /// Faults when the list is full.
  void Add(const PressedKey& key);
  /// Takes the selected item; without one it only says that the list is empty.
  void Remove(const PressedKey& key);
  void Clear(const PressedKey& key);
  /// Nothing with an empty main list.
  void Run(const PressedKey& key);
  /// "df" or "alpha", by the caption; in the error state it only ends that. Faults when the display shows no
  /// number.
  void SetParameter(const PressedKey& key);

 private:
  StatisticsHost& Data;
  StatisticsState& Now;
};

}  // namespace qves
