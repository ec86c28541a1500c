// Event sounds through the library: with a sound server, without one, and with one that hangs or dies.
#include <gtest/gtest.h>
#include <signal.h>
#include <sys/stat.h>

#include <filesystem>
#include <fstream>

#include "FakePlatform.h"
#include "SpeechRig.h"
#include "posix/IniRegistry.h"
#include "posix/PosixFileStore.h"
#include "services/ServiceSet.h"
#include "sounds/canberra/CanberraSounds.h"

namespace qves {
namespace {

using namespace std::chrono_literals;

constexpr int Loud = 500;
/// A sound that starts, or a server that hangs and is given up, on a machine that may be busy.
constexpr std::chrono::milliseconds Soon{1000 * Slowness};

struct CanberraTest : testing::Test {
  PrivateDesktop Desktop;
  TestPump Pump;
  CanberraSounds Sounds{Pump};

  bool Played = false;
  std::chrono::milliseconds Play(const std::string& path, bool wait) {
    return TimeOf([&] { Played = Sounds.Play(path, wait); });
  }
};

TEST_F(CanberraTest, WithoutASoundServerNothingWaits) {
  EXPECT_LT(Play(SOUND, true), Soon);
}

struct CanberraHeardTest : CanberraTest {
  std::optional<PrivateSound> Server{Desktop};
  void SetUp() override {
    if (!Server->Ready()) GTEST_SKIP() << "no sound server to be had";
  }
};

TEST_F(CanberraHeardTest, TheSoundIsHeardAndCanBeWaitedFor) {
  EXPECT_LT(Server->LoudestOfLast(1s), Loud);
  const auto took = Play(SOUND, true);
  EXPECT_TRUE(Played);
  EXPECT_GT(took, 80ms) << "the sound has 120 ms";
  EXPECT_LT(took, Soon);
  EXPECT_TRUE(ReachedWithin(Pump, 2s, [&] { return Server->LoudestOfLast(2s) > Loud; }));
}

TEST_F(CanberraHeardTest, WhatIsNoSoundIsRefused) {
  const std::string text = Desktop.Folder() + "/text.wav";
  const std::string pipe = Desktop.Folder() + "/pipe.wav";
  std::ofstream(text) << "no sound";
  ASSERT_EQ(::mkfifo(pipe.c_str(), 0600), 0);
  for (const std::string& path : {text, pipe, Desktop.Folder(), std::string("/missing.wav"), std::string()}) {
    EXPECT_LT(Play(path, true), Soon) << path;
    EXPECT_FALSE(Played) << path;
  }
  Play(SOUND, false);
  EXPECT_TRUE(Played);
}

TEST_F(CanberraHeardTest, AServerThatHangsIsNotWaitedFor) {
  Play(SOUND, false);
  EXPECT_TRUE(Played);
  Server->Signal(SIGSTOP);
  EXPECT_LT(Play(SOUND, true), Soon);
  EXPECT_FALSE(Played);
  EXPECT_LT(Play(SOUND, true), Prompt) << "the first call still hangs";
  EXPECT_FALSE(Played);
  Server->Signal(SIGCONT);
  EXPECT_TRUE(ReachedWithin(Pump, 5s, [&] {
    Play(SOUND, false);
    return Played;
  }));
}

TEST_F(CanberraHeardTest, AServerThatIsStartedAgainIsFound) {
  Play(SOUND, false);
  EXPECT_TRUE(Played);
  Server->Signal(SIGKILL);
  EXPECT_LT(Play(SOUND, false), Soon);
  ASSERT_TRUE(ReachedWithin(Pump, 10s, [&] {
    Server.emplace(Desktop);
    return Server->Ready();
  }));
  Play(SOUND, false);
  EXPECT_TRUE(Played);
}

TEST_F(CanberraHeardTest, ASoundWhoseFileIsGoneIsReplacedHeardAndAssigned) {
  FakePlatform fake;
  PosixFileStore files("", "");
  IniRegistry registry(files, Desktop.Folder() + "/registry.ini");
  Platform platform{fake.Speech,      fake.Hints, fake.WindowMessages, fake.Windows,        files,
                    fake.Directories, registry,   fake.TheLocale,      fake.TheClock,       fake.Events,
                    fake.Random,      Sounds,     fake.FileDialog,     fake.TheSpreadsheet, fake.Clip};
  ServiceSet set(platform);
  set.All.FolderLocations.SoundsFolder = std::filesystem::path(SOUND).parent_path();
  set.All.Verbosity.ApplySetting("vrbTopOfList", "2");
  const std::string key = R"(AppEvents\Schemes\Apps\Quorvane 1000\Q1KListTop\.current)";
  std::string error;
  ASSERT_TRUE(registry.Write(key, "", Desktop.Folder() + "/deleted.wav", error)) << error;
  EXPECT_LT(Server->LoudestOfLast(1s), Loud);
  EXPECT_EQ(set.All.Sounds.VerbosityAnnounce(TopOfListEntry, true), "");
  EXPECT_TRUE(ReachedWithin(Pump, 2s, [&] { return Server->LoudestOfLast(2s) > Loud; }));
  EXPECT_EQ(IniRegistry(files, Desktop.Folder() + "/registry.ini").Read(key, ""), SOUND);
}

}  // namespace
}  // namespace qves
