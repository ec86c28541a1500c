#include "views/statistics/frmStatistics.h"

#include "formulas/Numbers.h"
#include "model/ArithmeticFault.h"
#include "services/ListWords.h"
#include "services/MessageIds.h"
#include "text/Text.h"
#include "views/statistics/FreeFormat.h"
#include "views/statistics/StatisticsControls.h"
#include "views/statistics/StatisticsKeyMap.h"
#include "views/statistics/StatisticsReport.h"
#include "views/statistics/StatisticsRun.h"

namespace qves {
namespace {

constexpr MenuSpec Menus[] = {
    {FileMenu, {ImportItem, ImportTableItem, ExitItem}},
    {ViewMenu, {}},
    {HelpMenu, {AboutStatisticsItem, StatisticsHotKeysItem, InverseItem}},
};

const ClickRow Clicks[] = {
    {"cmdSign", &EntryEngine::UnaryOperator, FocusRule::Stays},
    {"cmdAdd", Own(&StatisticsEngine::Add), FocusRule::Stays},
    {"cmdRemove", Own(&StatisticsEngine::Remove), FocusRule::Moves},
    {"cmdClear", Own(&StatisticsEngine::Clear), FocusRule::Moves},
    {"cmdRun", Own(&StatisticsEngine::Run), FocusRule::Moves},
    {"cmdStat", Own(&StatisticsEngine::SetParameter), FocusRule::Stays},
};

static_assert(AllStandIn(statistics::Controls, statistics::KeyMap));

constexpr ViewTables StatisticsTables = {
    .FormName = "frmStatistics",
    .Controls = statistics::Controls,
    .Panels = statistics::Panels,
    .KeyMap = statistics::KeyMap,
    .Menus = Menus,
    .Clicks = Clicks,
    .RestingControl = "cmdAdd",
};

}  // namespace

frmStatistics::frmStatistics(Services& services, ViewFrame& frame)
    : StateView(StatisticsTables, services, frame),
      Lists{FindAs<ListView>("lvwData"), FindAs<ListView>("lvwData2")},
      IgnoreZero(FindAs<CheckBox>("cbIgnoreZero")),
      UseList2(FindAs<CheckBox>("cbUseList2")) {
  for (const DataList list : {DataList::Main, DataList::Second})
    ListOf(list).Items = &Now.Lists[static_cast<std::size_t>(list)];
  EngineHost& host = *this;
  StatisticsHost& data = *this;
  UseEngine(std::make_unique<StatisticsEngine>(Now, host, data, Says));
}

void frmStatistics::Restore(const StatisticsState& calculation) {
  const std::array before = {Lists[0]->ItemCount(), Lists[1]->ItemCount()};
  StateView::Restore(calculation);
  for (std::size_t i = 0; i < before.size(); ++i) ItemsReplaced(*Lists[i], before[i]);
}

Wording frmStatistics::Announcement(const Control& control) {
  const auto* list = dynamic_cast<const ListView*>(&control);
  if (!list) return View::Announcement(control);
  const DataList which = list == Lists[0] ? DataList::Main : DataList::Second;
  const std::string name = list->SpokenName + ", ";
  if (list->ItemCount() == 0) return {name + Common.Messages.GetMessage(WordsOf(which).Empty)};
  Wording words = ChosenWords(*list);
  words.Text.insert(0, name);
  words.Value.Start += name.size();
  return words;
}

/// The item, and its place in the list where the user wants to hear that.
Wording frmStatistics::ChosenWords(const ListControl& list) const {
  if (list.ListIndex == NoItem) return {};
  const std::string item = Common.Speech.SpeechFormatNumber(list.ItemText(list.ListIndex));
  Wording words{item, {0, item.size()}};
  words.Text += ListPlaceWords(Common, list.ListIndex, list.ItemCount());
  return words;
}

void frmStatistics::OnListEnd(ListControl&, int step) {
  TellListEnd(Common, step);
}

void frmStatistics::OnMenu(int id) {
  if (id == ImportItem)
    Import();
  else if (id == ImportTableItem)
    ImportTable();
  else
    return View::OnMenu(id);
  if (Common.Outside.FileDialog.TakesFocus() && Frame.IsActive(*this)) Returned();
}

/// A fault ends the calculation without a word, and the dialog reads the report of the run before. Both are
/// wanted.
void frmStatistics::Report(double degreesOfFreedom, double alpha) {
  const std::string path = Common.FolderLocations.ReportFile();
  try {
    const StatisticsResult result =
        RunStatistics({Items(DataList::Main).Copy(), Items(DataList::Second).Copy(), IgnoresZero(),
                       degreesOfFreedom, alpha},
                      Common.Outside.Sheet);
    for (FinishedCalculation& figure : KeyFigures(result, Common.Messages)) Record(std::move(figure));
    std::string error;
    if (!Common.Outside.Files.Write(path, WriteReport(result, Common.Messages), error))
      Common.Log.WriteErrorLog(ReportErrorCode, "The report " + path + " cannot be written: " + error +
                                                    "; the one of before is read");
  } catch (const ArithmeticFault&) {
  }
  Frame.OpenResult();
}

/// The folder is made, so that the dialog begins in the same one before and after the first report.
std::string frmStatistics::AskForFile(int title, const std::string& filter, const std::string& extension) {
  const std::string& folder = Common.FolderLocations.DocumentsFolder;
  Common.Outside.Files.MakeFolder(folder);
  return Common.Outside.FileDialog.Show({Message(title), filter, extension, folder});
}

/// Files that spreadsheets write are offered, too.
void frmStatistics::Import() {
  const std::string filter = Message(ImportFilterMessage) + "|" + Message(MoreFilesMessage);
  const std::string path = AskForFile(ImportTitleMessage, filter, "txt");
  if (path.empty()) return;
  ImportFile(path);
  NoteStep(Message(ImportStepMessage));
}

void frmStatistics::LogImport(const std::string& path, const std::string& what) {
  Common.Log.WriteErrorLog(ImportErrorCode, path + ": " + what);
}

/// The list is emptied when the file is open, before anything is read: what a broken file loses is wanted so.
void frmStatistics::ImportFile(const std::string& path) {
  const auto log = [&](const std::string& what) { LogImport(path, what); };
  std::string error;
  const auto text = Common.Outside.Files.Read(path, error);
  Now.Imported = {path.substr(path.rfind('/') + 1), TargetList(), text.has_value()};
  if (!text) return log(error + "; nothing is imported");
  ListView& list = ListOf(TargetList());
  RemoveItems(list, 0, list.ItemCount());
  std::vector<std::string> items;
  const auto take = [&](double value) {
    if (value == 0 && IgnoresZero()) return true;
    if (items.size() == MostPoints) return false;
    items.push_back(NumberToText(value));
    return true;
  };
  const auto fault = ReadFreeFormat(*text, take);
  AppendItems(list, items);
  Now.Imported.Count = items.size();
  if (!fault) return;
  Now.Imported.StoppedAt = fault->Line;
  Now.Imported.Word = MakeReadable(fault->Word);
  Now.Imported.IsFull = fault->IsFull;
  log("line " + std::to_string(fault->Line) + ": " + fault->Reason + "; the import ends there, with " +
      std::to_string(items.size()) + " in the list");
}

}  // namespace qves
