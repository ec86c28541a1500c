// Many points at once: out of the clipboard, and out of a table.
#include "formulas/Numbers.h"
#include "services/DecimalMark.h"
#include "services/MessageIds.h"
#include "views/statistics/Cells.h"
#include "views/statistics/frmStatistics.h"

namespace qves {

/// A single number is the entry's; only several are points.
bool frmStatistics::PasteText(std::string_view text) {
  if (View::PasteText(text)) return true;
  const bool comma = WritesDecimalComma(Common.Settings, Common.Outside.Language);
  const std::vector<double> numbers = ReadForeignNumbers(text, comma);
  if (numbers.empty()) return false;
  if (numbers.size() == 1) {
    PasteNumber(numbers.front());
    return true;
  }
  const int message = TargetList() == DataList::Main ? AddedMessage : Added2Message;
  const Taken taken = AddPoints(numbers);
  Says.Say(CountWords(message, taken.Added) + FullWords(taken));
  return true;
}

/// Into the list that counts, as many as it has room for.
frmStatistics::Taken frmStatistics::AddPoints(std::span<const double> numbers) {
  ListView& list = ListOf(TargetList());
  const std::size_t room = MostPoints - static_cast<std::size_t>(list.ItemCount());
  std::vector<std::string> items;
  std::size_t leftOut = 0;
  for (const double number : numbers) {
    if (number == 0 && IgnoresZero()) continue;
    if (items.size() < room)
      items.push_back(NumberToText(number));
    else
      ++leftOut;
  }
  AppendItems(list, items);
  return {items.size(), leftOut};
}

void frmStatistics::ImportTable() {
  const std::string path = AskForFile(TableTitleMessage, Message(TableFilterMessage), "csv");
  if (path.empty()) return;
  std::vector<TableColumn> columns = ReadTableFile(path);
  const std::string file = path.substr(path.rfind('/') + 1);
  if (columns.size() == 1) return ImportColumn(file, columns.front());
  if (columns.empty()) return;
  std::vector<std::string> names;
  for (const TableColumn& column : columns) names.push_back(NameOf(column));
  Frame.OpenColumns(std::move(names), [this, file, columns = std::move(columns)](std::size_t chosen) {
    ImportColumn(file, columns[chosen]);
    Returned();  // what it said has cut off where the user came back to
  });
}

/// None where there is no number; that has been said then.
std::vector<TableColumn> frmStatistics::ReadTableFile(const std::string& path) {
  std::string error;
  const auto bytes = Common.Outside.Files.Read(path, error);
  std::vector<TableColumn> columns;
  if (bytes) columns = ReadTable(*bytes, WritesDecimalComma(Common.Settings, Common.Outside.Language));
  if (!columns.empty()) return columns;
  LogImport(path, (bytes ? "no column of it holds a number" : error) + "; nothing is imported");
  Common.Speech.SpeakText(Message(bytes ? NoNumbersMessage : UnreadableMessage));
  return {};
}

void frmStatistics::ImportColumn(const std::string& file, const TableColumn& column) {
  ListView& list = ListOf(TargetList());
  RemoveItems(list, 0, list.ItemCount());
  const Taken taken = AddPoints(column.Values);
  Now.Imported = {file, TargetList(), true};
  Now.Imported.Count = taken.Added;
  std::string words = CountWords(ImportedMessage, taken.Added);
  if (column.LinesLeftOut > 0)
    words += " " + CountWords(LeftOutMessage, static_cast<std::size_t>(column.LinesLeftOut));
  Common.Speech.SpeakText(words + FullWords(taken));
  NoteStep(Message(TableStepMessage));
}

std::string frmStatistics::NameOf(const TableColumn& column) const {
  return column.Name.empty() ? FillPlaceholders(Message(ColumnMessage), {std::to_string(column.Number)})
                             : column.Name;
}

/// The message of several things, or the one behind it for a single one.
std::string frmStatistics::CountWords(int message, std::size_t count) const {
  return count == 1 ? Message(message + 1) : FillPlaceholders(Message(message), {std::to_string(count)});
}

std::string frmStatistics::FullWords(const Taken& taken) const {
  return taken.LeftOut == 0 ? "" : " " + CountWords(ListFullMessage, taken.LeftOut);
}

}  // namespace qves
