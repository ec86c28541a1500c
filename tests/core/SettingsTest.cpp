#include <gtest/gtest.h>

#include "FakePlatform.h"
#include "services/ServiceSet.h"

namespace qves {
namespace {

struct SettingsTest : testing::Test {
  FakePlatform Outside;
  std::optional<ServiceSet> Set;

  const AppSettings& Read(const std::string& hostFile) {
    Outside.Files.Content[Outside.HostFile] = hostFile;
    Set.emplace(Outside.All);
    Set->All.SettingsStore.ReadSettings();
    return Set->All.Settings;
  }
};

TEST_F(SettingsTest, DefaultsWithoutFiles) {
  Set.emplace(Outside.All);
  Set->All.SettingsStore.ReadSettings();
  const AppSettings& settings = Set->All.Settings;
  EXPECT_EQ(settings.SystemVoice, "Reed");
  EXPECT_EQ(settings.SystemManuf, "IBM");
  EXPECT_EQ(settings.CalcView, StandardView);
  EXPECT_EQ(settings.TextColor, 15);
  EXPECT_FALSE(settings.HostFileFound);
  EXPECT_EQ(Outside.ErrorLog(), "");
}

TEST_F(SettingsTest, EveryKindOfValue) {
  const AppSettings& settings = Read(
      "\"Settings\",\r\n\"SystemVolume\",\"40000\"\r\n\"SystemVoice\",\"Anna, the voice\"\n\"SystemSpeed\",  "
      "250  \n"
      "SystemPitch , "
      "-1\n\"DontSpeak\",#TRUE#\n\"EchoChars\",\"False\"\n\"SpellPref\",\"a\"\n\"Unknown\",\"x\"\n"
      "\"SpellPref\",\"b\"\n\"SpellPref\",\"c\"\n\"SystemSpeed\",\"260\"\n\"systemspeed\",\"1\"\n");
  EXPECT_EQ(settings.SystemVolume, 40000);
  EXPECT_EQ(settings.SystemVoice, "Anna, the voice");
  EXPECT_EQ(settings.SystemSpeed, 260) << "the later one of two counts, and case matters";
  EXPECT_TRUE(settings.DontSpeak);
  EXPECT_FALSE(settings.EchoChars);
  EXPECT_EQ(settings.SpellPref, (std::vector<std::string>{"a", "b", "c"}));
  EXPECT_TRUE(settings.HostFileFound);
  EXPECT_EQ(Outside.ErrorLog(), "");
}

TEST_F(SettingsTest, AFaultEndsTheReadingAndIsLogged) {
  const struct {
    const char* Fault;
    const char* Logged;
  } rows[] = {
      {"\"SystemSpeed\",\"fast\"\n", ":3: \"fast\" for SystemSpeed is no integer"},
      {"\"SystemSpeed\",99999\n", ":3: \"99999\" for SystemSpeed is out of range"},
      {"\"SystemVolume\",\"2147483648\"\n", "is out of range"},
      {"\"DontSpeak\",\"perhaps\"\n", "is neither true nor false"},
      {"\"SystemVoice\",\"An", "ends inside \"SystemVoice\""},
      {"\"SystemVoice\"", "ends inside \"SystemVoice\""},
      {"\"SystemVo", "ends inside \"SystemVo\""},
  };
  for (const auto& row : rows) {
    Outside.Files.Content.erase("/home/anna/Documents/QVES/Temporary/Error Log.txt");
    const std::string after = std::string(row.Fault).ends_with('\n') ? "\"FontName\",\"After\"\n" : "";
    const AppSettings& settings =
        Read("\"Settings\"\n\"PrintName\",\"Before\"\n" + std::string(row.Fault) + after);
    EXPECT_EQ(settings.PrintName, "Before") << row.Fault;
    EXPECT_EQ(settings.FontName, "Arial") << row.Fault;
    EXPECT_EQ(settings.SystemSpeed, 170) << row.Fault;
    const std::string log = Outside.ErrorLog();
    EXPECT_TRUE(log.starts_with("2026-01-31T10:20:30\t1\t" + Outside.HostFile)) << log;
    EXPECT_NE(log.find(row.Logged), std::string::npos) << log;
  }
}

TEST_F(SettingsTest, AMegabyteOnOneLineIsAValueLikeAnother) {
  const std::string voice(1 << 20, 'v');
  EXPECT_EQ(Read("\"Settings\"\n\"SystemVoice\",\"" + voice + "\"\n").SystemVoice, voice);
}

TEST_F(SettingsTest, OwnFileHoldsTheView) {
  Outside.Files.Content[Outside.OwnFile] = "\"Calc Settings\"\n\"Other\",5\n\"CalcView\",3\n";
  EXPECT_EQ(Read("\"Settings\"\n\"CalcView\",\"1\"\n").CalcView, BusinessView);
  Set->All.Settings.CalcView = 0;
  Set->All.SettingsStore.SaveSettings();
  EXPECT_EQ(Outside.Files.Content[Outside.OwnFile], "\"Calc Settings\"\n\"CalcView\",0\n");
}

TEST_F(SettingsTest, OwnSettingsAreKeptWhereTheyAreNotTheUsualOnes) {
  const std::string header = "\"Calc Settings\"\n\"CalcView\",2\n";
  const std::string comma = "\"DecimalComma\",\"off\"\n";
  const std::string silence = "\"NoFunctionSound\",\"false\"\n";
  const struct {
    std::string File;
    std::string Kept;
    const char* Logged;
  } rows[] = {
      {comma + silence, comma + silence, ""},
      {"\"NoFunctionSound\",\"False\"\n\"Other\",\"x\"\nDecimalComma, off \n", comma + silence, ""},
      {"\"DecimalComma\",\"auto\"\n\"NoFunctionSound\",\"true\"\n", "", ""},
      {"\"DecimalComma\",\"perhaps\"\n" + silence, silence,
       "Calc.ost: \"perhaps\" for DecimalComma is none of auto, on, off; it is ignored"},
      {"\"SpokenDecimals\",4\n\"NumberReading\",\"Pairs\"\n\"SpeechDetail\",\"brief\"\n",
       "\"NumberReading\",\"pairs\"\n\"SpokenDecimals\",\"4\"\n\"SpeechDetail\",\"brief\"\n", ""},
      {"\"OwnVoice\",\"off\"\n\"Volume\",5\n\"Speed\",\"450\"\n",
       "\"Speed\",\"450\"\n\"Volume\",\"5\"\n\"OwnVoice\",\"off\"\n", ""},
      {"\"Speed\",200\n\"Speed\",\"Host\"\n\"Volume\",\"100\"\n", "\"Volume\",\"100\"\n", ""},
      {"\"Speed\",451\n" + comma, comma, "\"451\" for Speed is none of host, 80 to 450; it is ignored"},
      {"\"Volume\",60\n\"Volume\",\"4\"\n", "\"Volume\",\"60\"\n", "Volume is none of host, 5 to 100"},
      {"\"Speed\",\"-1\"\n", "", "\"-1\" for Speed"},
      {"\"Speed\",\"170.5\"\n", "", "\"170.5\" for Speed"},
      {comma + "\"DecimalComma\",\"\"\n", comma, "\"\" for DecimalComma"},
  };
  for (const auto& row : rows) {
    Outside.Files.Content.erase("/home/anna/Documents/QVES/Temporary/Error Log.txt");
    Outside.Files.Content[Outside.OwnFile] = header + row.File;
    Read("\"Settings\"\n\"DecimalComma\",\"on\"\n");  // not the host's
    Set->All.SettingsStore.SaveSettings();
    EXPECT_EQ(Outside.Files.Content[Outside.OwnFile], header + row.Kept);
    const std::string log = Outside.ErrorLog();
    EXPECT_NE(log.find(row.Logged), std::string::npos) << log;
    EXPECT_EQ(log.empty(), std::string(row.Logged).empty()) << log;
  }
}

TEST_F(SettingsTest, VerbosityEntriesReachTheirTable) {
  Read("\"Settings\"\n\"vrbTopOfList\",\"2\"\n\"vrbListPos\",\"1 item %% of %%\"\n\"vrbBotOfList\",\"9\"\n");
  const VerbosityTable& table = Set->All.Verbosity;
  EXPECT_EQ(table.VerbosityMode(TopOfListEntry), FeedbackMode::Sound);
  EXPECT_EQ(table.VerbosityText(ListPositionEntry), "item %% of %%");
  EXPECT_EQ(table.VerbosityMode(BottomOfListEntry), FeedbackMode::Spoken);
  EXPECT_EQ(table.VerbosityMode(0), FeedbackMode::Silent);
  EXPECT_EQ(table.VerbosityText(0), "");
}

TEST_F(SettingsTest, DocumentsComeFromTheFirstFolderThatExists) {
  const std::string first = R"(Software\QVES\Quorvane 1000|Documents)";
  const std::string second = R"(Software\QVES\Trelwick|Documents)";
  const struct {
    std::map<std::string, std::string> Registry;
    std::string Folder;
  } rows[] = {
      {{{first, "/docs"}, {second, "/other"}}, "/docs"},
      {{{first, "/missing"}, {second, "/docs"}}, "/docs"},
      {{{first, "/missing"}}, "/home/anna/Documents/QVES"},
      {{}, "/home/anna/Documents/QVES"},
  };
  for (const auto& row : rows) {
    Outside.RegistryStore.Values = row.Registry;
    Read("");
    EXPECT_EQ(Set->All.FolderLocations.DocumentsFolder, row.Folder);
    EXPECT_EQ(Set->All.FolderLocations.TemporaryFolder, row.Folder + "/Temporary");
  }
}

TEST_F(SettingsTest, WhatCannotBeReadOrWrittenIsLogged) {
  Outside.Files.FolderList.push_back(Outside.HostFile);
  Set.emplace(Outside.All);
  Set->All.SettingsStore.ReadSettings();
  EXPECT_NE(Outside.ErrorLog().find("Host.ost: cannot be read (Is a directory)"), std::string::npos);
  Outside.Files.ReadOnly = true;
  testing::internal::CaptureStderr();
  Set->All.SettingsStore.SaveSettings();
  EXPECT_NE(
      testing::internal::GetCapturedStderr().find("Calc.ost: cannot be written (Read-only file system)"),
      std::string::npos);
}

}  // namespace
}  // namespace qves
