// What becomes of a key before a view sees it, and of one that nobody uses.
#include "ApplicationFixture.h"

namespace qves {
namespace {

TEST_F(ApplicationTest, WhileAMenuIsOpenOnlyF1IsHeardByTheCalculator) {
  Outside.Files.Content["/program/CalcMsg.txt"] += "1201\tValue\n";
  Start();
  HintListener& hints = *Outside.Hints.GetListener();
  hints.MenuItemHighlighted("Tools", "&", true);
  TakeSaid();
  EXPECT_FALSE(App->KeyDown({'7', NoShift, U'7'}));
  EXPECT_EQ(TakeSaid(), Texts{});
  EXPECT_TRUE(App->KeyDown({KeyF1, NoShift, 0}));
  EXPECT_EQ(TakeSaid(), Texts{"now Tools. The mnemonic for this menu item is ampersand. More."});
  hints.MenuItemHighlighted("Exit", "", false);
  TakeSaid();
  App->KeyDown({KeyF1, NoShift, 0});
  EXPECT_EQ(TakeSaid(), Texts{"now Exit. "});
  TakeSaid();
  hints.MenusClosed(true);
  EXPECT_EQ(TakeSaid(), Texts{}) << "the item speaks";
  hints.MenusClosed(false);
  EXPECT_EQ(TakeSaid(), Texts{"queued Value"});
  EXPECT_TRUE(App->KeyDown({'7', NoShift, U'7'}));
}

TEST_F(ApplicationTest, OnlyCtrlAloneStopsSpeech) {
  Start();
  TakeSaid();
  App->KeyDown({KeyControl, ControlBit, 0});
  App->KeyDown({'C', ControlBit, 0});
  App->KeyUp('C');
  App->KeyUp(KeyControl);
  EXPECT_EQ(TakeSaid(), Texts{"now "}) << "the copy's message, none in this message file";
  App->KeyDown({KeyControl, ControlBit, 0});
  App->KeyUp(KeyControl);
  EXPECT_EQ(TakeSaid(), Texts{"stop"});
  App->KeyDown({KeyControl, ControlBit, 0});
  App->KeyDown({'T', ControlBit | AltBit, 0});  // the desktop's, and yet a key in between
  App->KeyUp('T');
  App->KeyUp(KeyControl);
  EXPECT_EQ(TakeSaid(), Texts{});
}

TEST_F(ApplicationTest, WithAltGrOnlyWhatItTypesCounts) {
  const struct {
    int CalcView;
    KeyEvent Key;
    const char* Display;
  } rows[] = {
      {ScientificView, {'8', ControlBit | AltBit, U'('}, "("},
      {ScientificView, {'P', ControlBit | AltBit, U'\u00FE'}, "0"},
      {StandardView, {'7', AltBit, U'.'}, "0."},
      {StandardView, {KeyPad0 + 7, ControlBit | AltBit, 0}, "0"},
      {BusinessView, {'M', ControlBit | AltBit, U'\u00B5'}, "0"},
  };
  for (const auto& row : rows) {
    Outside.Files.Content[Outside.OwnFile] =
        "\"Calc Settings\"\n\"CalcView\"," + std::to_string(row.CalcView) + "\n";
    Start();
    App->KeyDown(row.Key);
    EXPECT_EQ(dynamic_cast<const TextBox&>(*App->ActiveForm()->Find("txtDisplay")).Text, row.Display);
  }
}

TEST_F(ApplicationTest, TheCommaOfTheUsersLanguageTypesThePoint) {
  const struct {
    const char* Setting;
    bool InTheLanguage;
    KeyEvent Key;
    const char* Display;
  } rows[] = {
      {"auto", true, {KeyComma, NoShift, U','}, "0."},
      {"auto", false, {KeyComma, NoShift, U','}, "0"},
      {"on", false, {KeyComma, NoShift, U','}, "0."},
      {"off", true, {KeyComma, NoShift, U','}, "0"},
      {"on", false, {'M', NoShift, U','}, "0."},  // where the layout has it
      {"on", false, {KeyComma, NoShift, U';'}, "0"},
      {"on", false, {KeyComma, ShiftBit, U'<'}, "0"},
      {"on", false, {KeyComma, ControlBit, 0}, "0"},
      {"on", false, {KeyComma, ControlBit | AltBit, U','}, "0"},
  };
  for (const auto& row : rows) {
    Outside.TheLocale.DecimalComma = row.InTheLanguage;
    Outside.Files.Content[Outside.OwnFile] =
        std::string("\"Calc Settings\"\n\"DecimalComma\",\"") + row.Setting + "\"\n";
    Start();
    App->KeyDown(row.Key);
    EXPECT_EQ(dynamic_cast<const TextBox&>(*App->ActiveForm()->Find("txtDisplay")).Text, row.Display)
        << row.Setting << " " << row.Key.Code << " " << row.Key.Shift;
  }
}

TEST_F(ApplicationTest, AKeyWithoutAFunctionTicksOnceAndSaysNothing) {
  const std::string tick = "/program/Sounds/NoFunction.wav";
  const struct {
    KeyEvent Key;
    bool Ticks;
  } rows[] = {
      {{'G', NoShift, U'g'}, true},    {{'G', NoShift, U'g', true}, false},  // held
      {{0, NoShift, U'\u00E8'}, true}, {{0, NoShift, 0}, false},             // unknown, or the desktop's
      {{'G', AltBit, 0}, false},       {{KeyF10, NoShift, 0}, false},
      {{KeyF10, ControlBit, 0}, true}, {{KeyScrollLock, NoShift, 0}, false},
      {{'7', NoShift, U'7'}, false},
  };
  Outside.Files.Content[tick] = "RIFF";
  Start();
  for (const auto& row : rows) {
    TakeSaid();
    Outside.Sounds.Asked.clear();
    App->KeyDown(row.Key);
    EXPECT_EQ(Outside.Sounds.Asked, row.Ticks ? Texts{tick} : Texts{}) << row.Key.Code;
    EXPECT_EQ(TakeSaid().empty(), row.Key.Code != '7') << row.Key.Code;
  }
  Outside.Hints.GetListener()->MenuItemHighlighted("File", "F", true);
  Outside.Sounds.Asked.clear();
  EXPECT_FALSE(App->KeyDown({'G', NoShift, U'g'}));
  EXPECT_EQ(Outside.Sounds.Asked, Texts{}) << "the menus' key";
}

TEST_F(ApplicationTest, TheVoiceHasItsNewSpeedAndVolumeBeforeItTellsThem) {
  Outside.Files.Content[Outside.HostFile] =
      "\"Settings\"\n\"SystemSpeed\",\"200\"\n\"SystemVolume\",\"32768\"\n";
  Start();
  const auto given = [&](KeyEvent key) {
    Outside.Speech.Settings.clear();
    App->KeyDown(key);
    return Outside.Speech.Settings;
  };
  EXPECT_EQ(given({KeyF8, NoShift}), (Texts{"speed 210", "volume 32768"}));
  EXPECT_EQ(given({KeyF8, ControlBit}), (Texts{"speed 210", "volume 36044"}));
  App->Leave();
  EXPECT_NE(Outside.Files.Content[Outside.OwnFile].find("\"Speed\",\"210\"\n\"Volume\",\"55\"\n"),
            std::string::npos);
  Outside.Speech.Settings.clear();
  Start();
  EXPECT_EQ(Outside.Speech.Settings, (Texts{"open 1", "speed 210", "volume 36044"}));
}

TEST_F(ApplicationTest, NothingReachesAVoiceThatIsOff) {
  Start();
  TakeSaid();
  App->KeyDown({KeyF9, NoShift});
  App->KeyDown({'7', NoShift, U'7'});  // of the same turn
  EXPECT_EQ(TakeSaid(), Texts{"now Off"});
  App->KeyDown({'7', NoShift, U'7'});
  EXPECT_EQ(TakeSaid(), Texts{});
  EXPECT_EQ(Set->All.Speech.LastSpokenText(), "7");
  App->KeyDown({KeyControl, ControlBit});
  App->KeyUp(KeyControl);
  EXPECT_EQ(TakeSaid(), Texts{}) << "not even a stop";
  App->KeyDown({KeyF9, NoShift});
  EXPECT_EQ(TakeSaid(), Texts{"now On"});
  App->KeyDown({KeyF9, NoShift});
  App->Leave();
  TakeSaid();
  Start();
  EXPECT_EQ(TakeSaid(), Texts{});
}

TEST_F(ApplicationTest, TheKeyHelpNamesAKeyAsItsLayoutHasIt) {
  const struct {
    KeyEvent Key;
    const char* Said;
  } rows[] = {
      {{'G', ControlBit | ShiftBit, 0}, "now Control Shift G: nothing"},
      {{'2', ShiftBit, U'"'}, "now Shift 2: . "},
      {{KeyRightBracket, NoShift, U'+'}, "now plus: . "},           // a German plus
      {{KeyEqual, ShiftBit, U'+'}, "now plus: . "},                 // and one with Shift
      {{KeySemicolon, NoShift, U'\u00F6'}, "now \u00F6: nothing"},  // a letter that has no code
      {{0, NoShift, U'\u00E9'}, "now \u00E9: nothing"},
      {{KeySemicolon, ControlBit, 0}, "now Control semicolon: nothing"},
      {{'Q', ControlBit | AltBit, U'@'}, "now @: nothing"},  // with AltGr
      {{KeyF1 + 10, ShiftBit, 0}, "now Shift F11: nothing"},
  };
  Start();
  App->KeyDown({KeyF1, ShiftBit});
  TakeSaid();
  for (const auto& row : rows) {
    EXPECT_TRUE(App->KeyDown(row.Key));
    EXPECT_EQ(TakeSaid(), Texts{row.Said});
  }
  EXPECT_FALSE(App->KeyDown({0, NoShift, 0})) << "a key that is unknown is the desktop's";
  EXPECT_FALSE(App->KeyDown({'F', AltBit, 0}));
  EXPECT_TRUE(App->KeyDown({'G', NoShift, U'g', true})) << "held";
  EXPECT_EQ(TakeSaid(), Texts{});
  EXPECT_TRUE(App->KeyDown({KeyEscape}));
  EXPECT_EQ(TakeSaid(), Texts{"now left"});
  EXPECT_FALSE(App->KeyDown({'G', NoShift, U'g'}));
}

}  // namespace
}  // namespace qves
