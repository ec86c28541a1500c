#include "ApplicationFixture.h"
#include "services/WindowActivation.h"
#include "text/Text.h"

namespace qves {
namespace {

TEST_F(ApplicationTest, AFirstCopyWelcomesAndASecondOnlyRaisesIt) {
  EXPECT_TRUE(Start());
  EXPECT_EQ(TakeSaid(), (Texts{"now Welcome.", "queued Standard View"}));
  EXPECT_EQ(Events, Texts{"shown frmStandard"});
  Outside.Windows.SecondCopy = true;
  Outside.Windows.Deeds.clear();
  EXPECT_FALSE(Start());
  EXPECT_EQ(Outside.Windows.Deeds,
            (Texts{"title ...duplicate instance", "raise QVES Calculator Application"}));
  EXPECT_EQ(TakeSaid(), Texts{});
}

TEST_F(ApplicationTest, LeavingSavesStopsAndGivesTheHostItsFocusBack) {
  Outside.Windows.Windows = {{5, "Editor", true}, {6, "My quorvane 1000 x", true}};
  Start();
  Outside.Windows.Deeds.clear();
  TakeSaid();
  EXPECT_TRUE(App->ActiveForm()->ChooseMenu(303));
  EXPECT_EQ(Outside.Windows.Deeds, Texts{"activate 6"});
  EXPECT_EQ(TakeSaid(), Texts{"stop"});
  EXPECT_EQ(Events, (Texts{"shown frmStandard", "closed frmStandard", "ended"}));
  EXPECT_EQ(Outside.Files.Content[Outside.OwnFile], "\"Calc Settings\"\n\"CalcView\",2\n");
  EXPECT_EQ(App->ActiveForm(), nullptr);
  EXPECT_FALSE(App->KeyDown({'7', NoShift, U'7'}));
}

TEST_F(ApplicationTest, TheEndOfTheSessionLeavesInOrder) {
  Start();
  Outside.WindowMessages.GetListener()->QueryUnload(0);
  EXPECT_NE(App->ActiveForm(), nullptr);
  Outside.WindowMessages.GetListener()->QueryUnload(SessionEnding);
  EXPECT_EQ(Events.back(), "ended");
  EXPECT_TRUE(Outside.Files.IsFile(Outside.OwnFile));
}

TEST_F(ApplicationTest, AViewThatIsNoneLeavesNoWindow) {
  Outside.Files.Content[Outside.OwnFile] = "\"Calc Settings\"\n\"CalcView\",7\n";
  EXPECT_TRUE(Start());
  EXPECT_EQ(Events, Texts{});
  EXPECT_EQ(App->ActiveForm(), nullptr);
}

TEST_F(ApplicationTest, AnOverflowingShutdownStillEnds) {
  Start();
  Outside.TheClock.Ticks = std::numeric_limits<std::int32_t>::max();
  App->Leave();
  EXPECT_EQ(Events.back(), "ended");
  EXPECT_NE(Outside.ErrorLog().find("\t6\t"), std::string::npos);
}

TEST_F(ApplicationTest, MenuItemsAreReadWithTheirKeysAndDots) {
  const struct {
    const char* Item;
    bool SubMenu;
    const char* Spoken;
  } rows[] = {
      {"Exit", false, "now Exit"},
      {"View", true, "now View. Has a sub-menu."},
      {"Paste Ctrl+V", false, "now Paste Control plus V"},
      {"Undo Ctrl+Shift+Z", false, "now Undo Control plus Shift plus Z"},
      {"Open...", false, "now Open. Opens a dialog."},
      {"More... items", true, "now More items. Opens a dialog.. Has a sub-menu."},
      {"a...b...", false, "now ab. Opens a dialog."},
  };
  Start();
  for (const auto& row : rows) {
    TakeSaid();
    Outside.Hints.GetListener()->MenuItemHighlighted(row.Item, "", row.SubMenu);
    EXPECT_EQ(TakeSaid(), Texts{row.Spoken});
  }
}

TEST(WindowActivation, TheFirstWindowWithTheFragment) {
  const struct {
    const char* Fragment;
    bool Found;
    Texts Deeds;
  } rows[] = {
      {"calc", true, {"activate 3"}},
      {"nothing", false, {}},
      {"APPOINTMENT calendar", true, {"key 114 to 4", "activate 4"}},
      {"hidden appointment calendar", true, {"activate 5"}},
  };
  for (const auto& row : rows) {
    FakeWindows windows;
    windows.Windows = {{2, "", true},
                       {3, "A CALCulator", true},
                       {4, "Appointment Calendar", true},
                       {5, "Hidden Appointment Calendar", false}};
    EXPECT_EQ(ActivateWindowByTitle(windows, row.Fragment), row.Found);
    EXPECT_EQ(windows.Deeds, row.Deeds) << row.Fragment;
  }
}

TEST_F(ApplicationTest, DocumentsThatAreNotAsTheyShouldBeAreShownAsFarAsTheyGoAndLogged) {
  struct Row {
    std::optional<std::string> Source;
    std::string Shown;
    std::string Logged;
  };
  // The cut falls into a character of two bytes.
  const std::string tooLong = "x" + ReplaceAll(std::string(6'000'000, 'y'), "y", "\u00E9");
  const Row rows[] = {
      {std::nullopt, "", "AboutStd.rtf: No such file or directory; an empty document is shown"},
      {"", "", "AboutStd.rtf: it is empty; an empty document is shown"},
      {"{\\rtf1 cal\\-cu\\u173?la\\'adtor.\\par}", "calculator.", ""},
      {tooLong, tooLong.substr(0, 11'999'999), "AboutStd.rtf: it is too long; its beginning is shown"},
  };
  for (const Row& row : rows) {
    Outside.Files.Content.clear();
    if (row.Source) Outside.Files.Content["/program/AboutStd.rtf"] = *row.Source;
    Start();
    App->ActiveForm()->ChooseMenu(351);
    EXPECT_TRUE(dynamic_cast<const Reader&>(*App->ActiveForm()->Find("lraAbout")).Text == row.Shown)
        << row.Logged;
    EXPECT_NE(Outside.ErrorLog().find(row.Logged), std::string::npos) << Outside.ErrorLog();
    EXPECT_EQ(Outside.ErrorLog().empty(), row.Logged.empty());
  }
}

TEST_F(ApplicationTest, WithoutAVoiceADocumentIsMovedInAndNothingReadsIt) {
  Outside.Speech.Known.clear();
  Outside.Files.Content["/program/AboutStd.rtf"] = "{\\rtf1 One. Two.\\par}";
  Start();
  App->ActiveForm()->ChooseMenu(351);
  for (const int code : {int{KeyRight}, int{KeyRight}, KeyF1 + 4}) App->KeyDown({code, NoShift, 0});
  const auto& reader = dynamic_cast<const Reader&>(*App->ActiveForm()->Find("lraAbout"));
  EXPECT_EQ(reader.Caret, 2);
  EXPECT_EQ(reader.SpokenLength, 0);
}

}  // namespace
}  // namespace qves
