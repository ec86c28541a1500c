#include <gtest/gtest.h>

#include "FakePlatform.h"
#include "services/ServiceSet.h"

namespace qves {
namespace {

using Texts = std::vector<std::string>;

const std::string Scheme = R"(AppEvents\Schemes\Apps\Quorvane 1000\Q1KListTop)";
const std::string Current = Scheme + R"(\.current|)";
const std::string Label = R"(AppEvents\EventLabels\Q1KListTop|)";
const std::string OwnWave = "/program/Sounds/ListEnd.wav";

struct EventSoundsTest : testing::Test {
  FakePlatform Outside;
  std::map<std::string, std::string>& Registry = Outside.RegistryStore.Values;
  Texts& Asked = Outside.Sounds.Asked;
  std::optional<ServiceSet> Set;
  Texts Played;

  EventSoundsTest() {
    Outside.Files.Content[OwnWave] = "RIFF";
    Outside.Files.Content["/mine/ding.wav"] = "RIFF";
    Outside.Files.Content["/mine/text.wav"] = "no sound";
    Outside.Files.FolderList.push_back("/mine");
  }
  EventSounds& Start(const std::string& hostSettings) {
    Outside.Files.Content[Outside.HostFile] = "\"Settings\"\n" + hostSettings;
    Set.emplace(Outside.All);
    Set->All.SettingsStore.ReadSettings();
    Set->All.Messages.LoadMessageFile("CalcMsg.txt");
    Set->All.Sounds.OnPlayed([this](std::string_view name) { Played.emplace_back(name); });
    return Set->All.Sounds;
  }
  std::string TopOfListIn(const std::string& mode) {
    return Start("\"vrbTopOfList\",\"" + mode + "\"\n").VerbosityAnnounce(TopOfListEntry, false);
  }
};

TEST_F(EventSoundsTest, TheModeDecidesBetweenSilenceWordsAndSound) {
  const struct {
    const char* Mode;
    const char* Spoken;
    Texts Played;
  } rows[] = {
      {"0", "", {}},    {"1", "top", {}}, {"2", "", {"Q1KListTop"}}, {"3 up here", "up here", {}},
      {"4", "top", {}},
  };
  for (const auto& row : rows) {
    Played.clear();
    EXPECT_EQ(TopOfListIn(row.Mode), row.Spoken) << row.Mode;
    EXPECT_EQ(Played, row.Played) << row.Mode;
  }
}

TEST_F(EventSoundsTest, TheSoundThatTheUserAssignedIsPlayedAndKept) {
  Registry[Current] = "/mine/ding.wav";
  const auto before = Registry;
  EXPECT_EQ(Start("\"vrbTopOfList\",\"2\"\n").VerbosityAnnounce(TopOfListEntry, true), "");
  EXPECT_EQ(Asked, Texts{"/mine/ding.wav and wait"});
  EXPECT_EQ(Registry, before);
}

TEST_F(EventSoundsTest, AnAssignedFileThatIsGoneIsReplacedAndPlayedOnce) {
  for (const char* gone : {"/mine/deleted.wav", "/mine", ""}) {
    Registry = {{Current, gone}};
    Asked.clear();
    Played.clear();
    EXPECT_EQ(TopOfListIn("2"), "") << gone;
    EXPECT_EQ(Registry[Scheme + "|"], "top") << gone;
    EXPECT_EQ(Registry[Current], OwnWave) << gone;
    EXPECT_EQ(Registry[Label], "top") << gone;
    EXPECT_EQ(Asked, Texts{OwnWave}) << gone;
    EXPECT_EQ(Played, Texts{"Q1KListTop"}) << gone;
  }
}

TEST_F(EventSoundsTest, WhatCannotBePlayedIsSilent) {
  const struct {
    const char* Assigned;
    bool HasOwnWave;
    const char* Left;  ///< what is assigned afterwards
  } rows[] = {
      {"/mine/text.wav", true, "/mine/text.wav"},
      {"/mine/deleted.wav", false, "/program/Sounds/ListEnd.wav"},
      {"", false, "/program/Sounds/ListEnd.wav"},
  };
  for (const auto& row : rows) {
    if (!row.HasOwnWave) Outside.Files.Content.erase(OwnWave);
    Registry = {{Current, row.Assigned}};
    EXPECT_EQ(TopOfListIn("2"), "") << row.Assigned;
    EXPECT_EQ(Registry[Current], row.Left);
    EXPECT_EQ(Played, Texts{}) << row.Assigned;
    EXPECT_EQ(Outside.ErrorLog(), "") << row.Assigned;
  }
}

TEST_F(EventSoundsTest, AFailedRegistrationIsLoggedAndStopsNobody) {
  Outside.RegistryStore.ReadOnly = true;
  EXPECT_EQ(TopOfListIn("2"), "");
  EXPECT_EQ(Outside.ErrorLog(), "2026-01-31T10:20:30\t3\tFailure in SetVerbosityWaveName - Access denied\n");
}

TEST_F(EventSoundsTest, TheListPositionIsNoSound) {
  EventSounds& sounds = Start("\"vrbListPos\",\"2\"\n");
  EXPECT_EQ(sounds.VerbosityAnnounce(ListPositionEntry, false), "");
  EXPECT_TRUE(Asked.empty());
  EXPECT_TRUE(Registry.empty());
  EXPECT_EQ(sounds.EventSoundPath(ListPositionEntry), "/program/Sounds/");
}

}  // namespace
}  // namespace qves
