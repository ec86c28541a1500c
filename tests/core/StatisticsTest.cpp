// Statistics where they fail, and the texts that data come from. What they compute is compared with other
// programs in tests/reports.
#include <gtest/gtest.h>

#include "FakePlatform.h"
#include "app/CalculatorApp.h"
#include "model/ArithmeticFault.h"
#include "services/ServiceSet.h"
#include "views/statistics/FreeFormat.h"
#include "views/statistics/StatisticsEngine.h"
#include "views/statistics/StatisticsRun.h"

namespace qves {
namespace {

using Texts = std::vector<std::string>;

struct FreeFormatRow {
  std::string_view Text;
  std::vector<double> Values;
  int FaultLine = 0;  ///< 0: read to its end
};

TEST(FreeFormat, FieldsAndFaults) {
  using namespace std::string_view_literals;
  const FreeFormatRow rows[] = {
      {"", {}},
      {" \r\n\t", {}},
      {"1,2,3", {1, 2, 3}},
      {"1\r\n2\r3\n4", {1, 2, 3, 4}},
      {"\xEF\xBB\xBF 007 , 1.50 -.5e1", {7, 1.5, -5}},
      {"1,,2", {1, 0, 2}},
      {"1, \n ,,2,", {1, 0, 0, 2}},
      {",5\n,6\n7,\n8 ,9", {0, 5, 0, 6, 7, 8, 9}},
      {"\"12\",\" -3 \" \"4\"\n5", {12, -3, 4, 5}},
      {"1E 2e+ 12.", {1, 2, 12}},
      {"1e-999 0x", {0}, 1},
      {"1\n2\r\n3\rx", {1, 2, 3}, 4},
      {"1 -", {1}, 1},
      {"1 \"2", {1}, 1},
      {"1 \"2\"3", {1}, 1},
      {"1 \"\" 2", {1}, 1},
      {"1 \"2,3\"", {1}, 1},
      {"1 2\0 3"sv, {1}, 1},
      {"1;2", {}, 1},
      {"1 1e999 2", {1}, 1},
      {"1 inf", {1}, 1},
      {"1 nan", {1}, 1},
      {"1 \xEF\xBB\xBF"
       "2",
       {1},
       1},
  };
  for (const FreeFormatRow& row : rows) {
    std::vector<double> values;
    const auto fault = ReadFreeFormat(row.Text, [&](double value) {
      values.push_back(value);
      return true;
    });
    EXPECT_EQ(values, row.Values) << row.Text;
    EXPECT_EQ(fault ? fault->Line : 0, row.FaultLine) << row.Text;
  }
}

TEST(FreeFormat, EndsWhereThereIsNoRoom) {
  int taken = 0;
  const auto fault = ReadFreeFormat("1 2\n3 4", [&](double) { return ++taken < 3; });
  ASSERT_TRUE(fault);
  EXPECT_EQ(fault->Line, 2);
  EXPECT_EQ(taken, 3);
}

struct FaultRow {
  Texts Items;
  Texts Items2;
  bool IgnoreZero = false;
  double DegreesOfFreedom = 0;
};

TEST(Statistics, FaultsEndTheRun) {
  const FaultRow rows[] = {
      {{"E"}, {}},
      {{"1", "2"}, {"E"}},
      {{}, {}},
      {{"0", "0."}, {}, true},
      {{"1e200"}, {}},                                 // its square
      {{"1e154", "1e154"}, {}},                        // the sum of the squares
      {{"6e153", "6e153", "6e153", "6e153"}, {}},      // the square of the sum
      {{"5", "5", "5"}, {"1", "2"}},                   // a variance of 0 under KR20
      {{"5", "5", "5"}, {"5", "5", "5"}},              // the same before both t statistics
      {{"1", "2", "3", "4"}, {"1.5e154", "0"}, true},  // the squares of a second list that is not used
      {{"1", "2", "4"}, {"1", "2"}, false, 0.5},       // the spreadsheet refuses it
  };
  for (const FaultRow& row : rows) {
    FakeSpreadsheet spreadsheet;
    spreadsheet.Value.reset();
    const StatisticsInput input{row.Items, row.Items2, row.IgnoreZero, row.DegreesOfFreedom, 0.05};
    EXPECT_THROW(RunStatistics(input, spreadsheet), ArithmeticFault) << &row - rows;
  }
}

TEST(Statistics, TheSpreadsheetIsAskedOnlyWhereItsValueCounts) {
  struct Row {
    Texts Items2;
    double DegreesOfFreedom;
    double Alpha;
    bool Written;
    int Calls;
  };
  const Row rows[] = {
      {{"1", "2"}, 3, 0.05, true, 1},   {{"1"}, 3, 0.05, true, 0},    {{}, 3, 0.05, true, 0},
      {{"1", "2"}, 0, 0.05, false, 0},  {{"1", "2"}, 3, 0, false, 0}, {{"1", "2"}, 3, 1, false, 0},
      {{"1", "2"}, -3, 0.05, false, 0},
  };
  const Texts items = {"1", "2", "4"};
  for (const Row& row : rows) {
    FakeSpreadsheet spreadsheet;
    const auto result =
        RunStatistics({items, row.Items2, false, row.DegreesOfFreedom, row.Alpha}, spreadsheet);
    EXPECT_EQ(result.Critical.has_value(), row.Written);
    EXPECT_EQ(spreadsheet.Calls, row.Calls);
    EXPECT_EQ(result.Critical.value_or(CriticalT()).T, row.Calls == 1 ? 2.5 : 0);
  }
}

struct StatisticsViewTest : testing::Test, AppObserver {
  FakePlatform Outside;
  ServiceSet Set{Outside.All};
  CalculatorApp App{Set.All, *this};
  StatisticsViewTest() { App.Main({StatisticsView}); }

  void Press(int code, int shift = NoShift) {
    App.KeyDown({code, shift, 0});
    App.KeyUp(code);
  }
  void Import(const std::string& text) {
    Outside.Files.Content["/data.txt"] = text;
    Outside.FileDialog.Answer = "/data.txt";
    App.ActiveForm()->ChooseMenu(302);
  }
  std::size_t Points() {
    return dynamic_cast<const ListView&>(*App.ActiveForm()->Find("lvwData")).Items->size();
  }
  std::string Display() { return dynamic_cast<const TextBox&>(*App.ActiveForm()->Find("txtDisplay")).Text; }
};

TEST_F(StatisticsViewTest, AFullListTakesNothingMore) {
  std::string many;
  for (int i = 0; i < 40000; ++i) many += "1\n";
  Import(many);
  EXPECT_EQ(Points(), 32767);
  EXPECT_NE(Outside.ErrorLog().find("/data.txt: line 32768: "), std::string::npos) << Outside.ErrorLog();
  Press('7');
  Press('A');
  EXPECT_EQ(Points(), 32767);
  EXPECT_EQ(Display(), "E");
  Outside.Speech.Said.clear();
  Set.All.Speech.EndTurn();
  EXPECT_EQ(Outside.Speech.Said, Texts{"now Error"});
  Press('R');
  Press('7');
  Press('A');
  EXPECT_EQ(Points(), 32767);
  EXPECT_EQ(Display(), "7");
}

TEST_F(StatisticsViewTest, TheFileDialogIsAskedInTheUsersFolder) {
  Import("1 2 x\x01\xFFy");
  const FileDialogSpec& asked = Outside.FileDialog.Asked;
  EXPECT_EQ(asked.DefaultExtension, "txt");
  EXPECT_EQ(asked.InitialFolder, "/home/anna/Documents/QVES");
  EXPECT_TRUE(Outside.Files.IsFolder(asked.InitialFolder));
  EXPECT_EQ(Points(), 2);
  EXPECT_NE(Outside.ErrorLog().find("\"x??y\" is no number"), std::string::npos) << Outside.ErrorLog();
  Outside.FileDialog.Answer = "/missing.txt";
  App.ActiveForm()->ChooseMenu(302);
  EXPECT_EQ(Points(), 2);
  EXPECT_NE(Outside.ErrorLog().find("No such file"), std::string::npos) << Outside.ErrorLog();
}

TEST_F(StatisticsViewTest, AReportThatCannotBeWrittenIsLoggedAndTheDialogOpens) {
  Import("1 2");
  Outside.Files.Content["/home/anna/Documents/QVES/Temporary/Result.txt"] = "of\r\nb\xEF\x01 fore";
  Outside.Files.ReadOnly = true;
  testing::internal::CaptureStderr();
  Press('U');
  EXPECT_NE(testing::internal::GetCapturedStderr().find("Result.txt cannot be written"), std::string::npos);
  ASSERT_EQ(App.ActiveForm()->Name(), "frmStatResult");
  EXPECT_EQ(dynamic_cast<const Reader&>(*App.ActiveForm()->Find("lraResult")).Text, "of\nb?? fore");
}

}  // namespace
}  // namespace qves
