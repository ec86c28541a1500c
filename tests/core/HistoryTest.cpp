// The history over files of every kind.
#include <memory>

#include "ApplicationFixture.h"
#include "services/History.h"

namespace qves {
namespace {

const std::string Path = "/home/anna/.local/state/QVES/History.txt";
const std::string Kept = "7 + 5 = 12\t12\t10\n";
const std::string Added = "A + 5 = F\t15\t16\n";

/// A session of its own over the same outside.
struct Session {
  explicit Session(FakePlatform& outside) : Set(outside.All) {}
  History* operator->() { return &Set.All.Past; }
  std::vector<std::string> Lines() {
    std::vector<std::string> lines;
    for (int i = Set.All.Past.Count(); i > 0; --i) lines.insert(lines.begin(), Set.All.Past.Walk(-1)->Line);
    return lines;
  }
  ServiceSet Set;
};

struct FileCase {
  std::string Name;
  std::string Content;
  int Used;        ///< how many of its lines
  bool IsDamaged;  ///< it is put aside before it is written anew
};

class HistoryFiles : public testing::TestWithParam<FileCase> {};

TEST_P(HistoryFiles, NothingIsLost) {
  FakePlatform outside;
  outside.Files.Content[Path] = GetParam().Content;
  Session session(outside);
  session.Set.All.Log.SetFolder("/log");
  EXPECT_EQ(session->Count(), GetParam().Used);
  session->Add({"A + 5 = F", 15, NumberBase::Hexadecimal});
  session->Save();
  EXPECT_TRUE(outside.Files.Content[Path].ends_with(Added));
  const bool isPutAside = outside.Files.Content[Path + ".damaged"] == GetParam().Content;
  EXPECT_EQ(isPutAside, GetParam().IsDamaged);
  EXPECT_EQ(!outside.Files.Content["/log/Error Log.txt"].empty(), GetParam().IsDamaged);
  EXPECT_EQ(Session(outside)->Count(), GetParam().Used + 1);
}

INSTANTIATE_TEST_SUITE_P(
    All, HistoryFiles,
    testing::Values(FileCase{"Whole", Kept + Kept, 2, false},
                    FileCase{"WindowsLineEnds", "7 + 5 = 12\t12\t10\r\n", 1, false},
                    FileCase{"NoLastLineEnd", Kept + "1 + 1 = 2\t2\t10", 2, false},
                    FileCase{"CutOffInTheBase", Kept + "1 + 1 = 2\t2\t1", 1, true},
                    FileCase{"CutOffInTheValue", Kept + "1 + 1 = 2\t", 1, true},
                    FileCase{"CutOffInTheLine", Kept + "1 + 1", 1, true},
                    FileCase{"NoNumber", Kept + "1 + 1 = 2\ttwo\t10\n", 1, true},
                    FileCase{"NoFiniteNumber", "a = inf\tinf\t10\na = nan\tnan\t10\n" + Kept, 1, true},
                    FileCase{"NumberTooLarge", Kept + "1 = 1\t1e999\t10\n", 1, true},
                    FileCase{"NoSuchBase", Kept + "1 + 1 = 2\t2\t7\n", 1, true},
                    FileCase{"NoLine", Kept + "\t2\t10\n", 1, true},
                    FileCase{"EndlessLine", std::string(100000, '1') + "\t1\t10\n" + Kept, 1, true},
                    FileCase{"Binary",
                             "\x7F"
                             "ELF\x01\t1\t10\n\xFF\xFE\t2\t10\n" +
                                 Kept,
                             1, true}),
    [](const auto& one) { return one.param.Name; });

TEST(History, LeavesAloneWhatItCannotRead) {
  FakePlatform outside;
  outside.Files.FolderList.push_back(Path);
  Session session(outside);
  session.Set.All.Log.SetFolder("/log");
  session->Add({"1 + 1 = 2", 2});
  session->Save();
  EXPECT_EQ(session->Count(), 1);
  EXPECT_FALSE(outside.Files.Content.contains(Path));
  const std::string log = outside.Files.Content["/log/Error Log.txt"];
  EXPECT_EQ(std::ranges::count(log, '\n'), 1) << "once: " << log;
}

TEST(History, TellsThatItCannotBeWritten) {
  FakePlatform outside;
  outside.Files.Content[Path] = Kept + "damaged";
  Session session(outside);
  session->Add({"1 + 1 = 2", 2});
  outside.Files.ReadOnly = true;
  session->Save();
  outside.Files.ReadOnly = false;
  EXPECT_EQ(outside.Files.Content[Path], Kept + "damaged") << "never without a copy";
  session->Save();
  EXPECT_EQ(outside.Files.Content[Path], Kept + "1 + 1 = 2\t2\t10\n") << "later is not too late";
}

TEST(History, KeepsTheLinesOfTwoCopies) {
  FakePlatform outside;
  outside.Files.Content[Path] = Kept;
  Session first(outside);
  Session second(outside);
  first->Add({"1", 1});
  second->Add({"2", 2});
  second->Add({"3", 3});
  first->Save();
  second->Save();
  second->Save();
  EXPECT_EQ(Session(outside).Lines(), (Texts{"7 + 5 = 12", "1", "2", "3"}));
}

TEST(History, KeepsTheNewestThousandWithAllTheirDigits) {
  FakePlatform outside;
  {
    Session session(outside);
    for (int i = 1; i <= 1500; ++i) session->Add({"1 / " + std::to_string(i), 1.0 / i, NumberBase::Octal});
    session->Save();
  }
  Session next(outside);
  ASSERT_EQ(next->Count(), 1000);
  EXPECT_EQ(next->Heard()->Line, "1 / 1500");
  for (int i = 1500; i > 500; --i) ASSERT_EQ(next->Walk(-1)->Value, 1.0 / i);
  EXPECT_EQ(next->Place(), 1);
  EXPECT_EQ(next->Walk(-1)->Base, NumberBase::Octal);
}

TEST(History, CanBeForgotten) {
  FakePlatform outside;
  outside.Files.Content[Path] = Kept;
  Session session(outside);
  session->Add({"1", 1});
  session->Clear();
  session->Save();
  EXPECT_EQ(session->Walk(-1), nullptr);
  EXPECT_EQ(Session(outside)->Count(), 0);
}

TEST(History, IsOffWhereTheUserWantsItSo) {
  FakePlatform outside;
  outside.Files.Content[Path] = Kept;
  Session session(outside);
  session.Set.All.Settings.KeepHistory = false;
  session->Add({"1 + 1 = 2", 2});
  session->Save();
  EXPECT_EQ(session->Count(), 1) << "the session has its own";
  EXPECT_EQ(outside.Files.Content[Path], Kept);
}

struct HistoryOfTheProgram : ApplicationTest {
  void Type(std::string_view keys) {
    for (const char key : keys) App->KeyDown({key == '=' || key == '+' ? 0 : key, 0, char32_t(key)});
  }
};

TEST_F(HistoryOfTheProgram, IsThereAfterARestart) {
  Outside.Files.Content["/program/CalcMsg.txt"] += "1810\t%% of %%:\n1812\tTaken: %%\n";
  ASSERT_TRUE(Start());
  App->ActiveForm()->ChooseMenu(306);
  Type("2+3=");
  EXPECT_FALSE(Outside.Files.Content.contains(Path)) << "not before the end";
  App->Leave();
  ASSERT_TRUE(Start());
  TakeSaid();
  App->KeyDown({KeyPageUp});
  EXPECT_EQ(TakeSaid(), Texts{"now 1 of 1: 2 + 3 = 5"});
  App->KeyDown({KeyF4});
  EXPECT_EQ(TakeSaid(), Texts{"now Taken: 5"});
}

}  // namespace
}  // namespace qves
