// Script mode as a program: its options, its input, its exit status, its files.
#include <gtest/gtest.h>
#include <signal.h>
#include <sys/stat.h>
#include <sys/wait.h>

#include <algorithm>
#include <cstdlib>
#include <fstream>
#include <nlohmann/json.hpp>
#include <sstream>
#include <vector>

#include "TemporaryFolder.h"

namespace qves {
namespace {

using Json = nlohmann::ordered_json;

struct Outcome {
  int Status = -1;
  std::vector<Json> Lines;
};

std::string ReadAll(const std::filesystem::path& path) {
  std::ostringstream text;
  text << std::ifstream(path, std::ios::binary).rdbuf();
  return text.str();
}

class ScriptMode : public testing::Test {
 protected:
  /// Runs the program in a home of its own.
  Outcome Run(const std::string& input, const std::string& options = "") {
    const auto in = Home.Path / "in.txt";
    const auto out = Home.Path / "out.txt";
    std::ofstream(in, std::ios::binary) << input;
    const std::string command = std::string(CLI) + " --script --home '" + HomeFolder() + "' " + options +
                                " < " + in.string() + " > " + out.string() + " 2> " +
                                (Home.Path / "err.txt").string();
    Outcome outcome;
    outcome.Status = WEXITSTATUS(std::system(command.c_str()));
    std::istringstream lines(ReadAll(out));
    for (std::string line; std::getline(lines, line);) outcome.Lines.push_back(Json::parse(line));
    return outcome;
  }

  std::string HomeFolder() const { return (Home.Path / "home").string(); }
  std::filesystem::path OwnSettings() const { return Home.Path / "home/.config/QVES/Settings/Calc.ost"; }
  std::string ErrorLog() const { return ReadAll(Home.Path / "home/Documents/QVES/Temporary/Error Log.txt"); }

  void WriteSettings(const std::string& name, const std::string& content) {
    std::filesystem::create_directories(OwnSettings().parent_path());
    std::ofstream(OwnSettings().parent_path() / name, std::ios::binary) << content;
  }

  TemporaryFolder Home;
};

TEST_F(ScriptMode, TwoCopiesThatEndTogetherKeepTheLinesOfBoth) {
  const std::string one = std::string("echo keys 1+1= | ") + CLI + " --script --view standard --home '" +
                          HomeFolder() + "' > /dev/null";
  constexpr int pairs = 10;
  for (int pair = 0; pair < pairs; ++pair) std::system((one + " & " + one + "; wait").c_str());
  const std::string kept = ReadAll(Home.Path / "home/.local/state/QVES/History.txt");
  EXPECT_EQ(std::ranges::count(kept, '\n'), 2 * pairs);
}

TEST_F(ScriptMode, OneObjectForEachCommandLine) {
  const Outcome outcome = Run("\n# a comment\n  \nkeys 7 + 5\r\nkey =");
  ASSERT_EQ(outcome.Lines.size(), 2u);
  EXPECT_EQ(outcome.Status, 0);
  EXPECT_EQ(
      outcome.Lines[1].dump(),
      R"json({"line":5,"command":"key =","form":"frmStandard","focus":"cmdDigit(5)","display":"12","memory":"",)json"
      R"json("tape":["7 + 5 = 12"],"spoken":[{"how":"now","text":"= 12"}],"sounds":[],"files":[]})json");
}

TEST_F(ScriptMode, TellsWhatTheVoiceIsGiven) {
  WriteSettings("Calc.ost", "\"Calc Settings\"\n\"SpokenDecimals\",2\n\"SpeechDetail\",\"brief\"\n");
  const Json keys = Run("keys 2@\n", "--voiced").Lines.at(0)["spoken"];
  ASSERT_EQ(keys.size(), 3u) << "the name on focus, which the key's own echo cuts off, is spoken too";
  EXPECT_FALSE(keys[0].contains("voiced"));
  EXPECT_EQ(keys[1]["voiced"], "2");
  EXPECT_EQ(keys[2]["voiced"], "about 1 point 4 1");
  const Outcome off = Run("key F9\nkeys 2\n", "--voiced");
  EXPECT_EQ(off.Lines.at(0)["spoken"][0]["voiced"], "Voice off.");
  EXPECT_EQ(off.Lines.at(1)["spoken"][1], Json::parse(R"({"how": "now", "text": "2"})"));
  const Outcome brief = Run("focus lltNumBase\n", "--voiced --view scientific");
  EXPECT_EQ(brief.Lines.at(0)["spoken"].size(), 1u) << "no help follows a name";
}

TEST_F(ScriptMode, BadLinesAreReportedAndTheRunGoesOn) {
  const std::string megabyte(1 << 20, 'x');
  const Outcome outcome = Run("bla\n" + megabyte + "\nkey \xFF\xFE\nkey 7\n");
  ASSERT_EQ(outcome.Lines.size(), 4u);
  EXPECT_EQ(outcome.Status, 1);
  for (std::size_t i = 0; i < 3; ++i) EXPECT_TRUE(outcome.Lines[i].contains("error")) << i;
  EXPECT_EQ(outcome.Lines[2]["command"], "key \xEF\xBF\xBD\xEF\xBF\xBD");
  EXPECT_EQ(outcome.Lines[3]["display"], "7");
}

TEST_F(ScriptMode, QuitSavesTheViewAndNothingFollows) {
  const Outcome outcome = Run("quit\nkey 7\n");
  EXPECT_EQ(outcome.Lines[0]["form"], nullptr);
  EXPECT_EQ(outcome.Lines[0]["files"], Json({OwnSettings().string()}));
  EXPECT_EQ(outcome.Lines[1]["form"], nullptr);
  EXPECT_TRUE(outcome.Lines[1]["spoken"].empty());
  EXPECT_EQ(ReadAll(OwnSettings()), "\"Calc Settings\"\n\"CalcView\",2\n");
}

TEST_F(ScriptMode, StateTellsEngineAndControls) {
  const Json state = Run("keys 7+5\nstate\n").Lines.at(1);
  EXPECT_EQ(state["engine"]["EntryText"], "5");
  EXPECT_EQ(state["engine"]["Accumulator"], 7);
  EXPECT_EQ(state["engine"]["LastAction"], "num");
  EXPECT_EQ(state["controls"][0], Json({{"name", "txtDisplay"}, {"text", "5"}, {"enabled", true}}));
}

TEST_F(ScriptMode, AnEntryOrASumBeyondADoubleIsSaidAsAnError) {
  const Json error = {{"how", "queued"}, {"text", "Error"}};
  const std::string digits(308, '9');
  Outcome outcome = Run("keys " + digits + "\nkey 9\nkey 5\n");
  EXPECT_EQ(outcome.Lines[0]["display"], digits);
  EXPECT_EQ(outcome.Lines[1]["spoken"], Json({{{"how", "now"}, {"text", "9"}}, error}));
  EXPECT_EQ(outcome.Lines[1]["display"], "E");
  EXPECT_EQ(outcome.Lines[2]["display"], "5");
  // The sum fails before the key has said its name: the focus says the name, the key only the error.
  outcome = Run("keys 1" + std::string(308, '0') + "\nkey Ctrl+m\nkey Ctrl+p\nkey Escape\nkey Ctrl+r\n");
  EXPECT_EQ(outcome.Lines[1]["display"], "1" + std::string(308, '0'));
  EXPECT_EQ(outcome.Lines[2]["spoken"][1], Json({{"how", "now"}, {"text", "Error"}}));
  EXPECT_EQ(outcome.Lines[2]["display"], "E");
  EXPECT_EQ(outcome.Lines[4]["display"], "1" + std::string(308, '0'));
}

TEST_F(ScriptMode, AViewThatIsNoneShowsNothing) {
  WriteSettings("Calc.ost", "\"Calc Settings\"\n\"CalcView\",7\n");
  const Outcome outcome = Run("key 7\n");
  EXPECT_EQ(outcome.Lines[0]["form"], nullptr);
  EXPECT_EQ(Run("key 7\n", "--view standard").Lines[0]["form"], "frmStandard");
}

TEST_F(ScriptMode, EndlessDigitsBehindThePoint) {
  const std::string digits(1 << 17, '7');
  const Outcome outcome = Run("keys 0." + digits + "\nkey =\nkey r\n");
  EXPECT_EQ(outcome.Lines[0]["display"], "0." + digits);
  EXPECT_EQ(outcome.Lines[1]["display"], "0." + digits);
  EXPECT_EQ(outcome.Lines[2]["display"], "1.28571428571429");
}

TEST_F(ScriptMode, OutputThatCannotBeWrittenIsSaid) {
  const std::string command = std::string("echo key 7 | ") + CLI + " --script --home '" + HomeFolder() +
                              "' > /dev/full 2> " + (Home.Path / "err.txt").string();
  EXPECT_EQ(WEXITSTATUS(std::system(command.c_str())), 2);
  EXPECT_NE(ReadAll(Home.Path / "err.txt").find("output"), std::string::npos);
}

TEST_F(ScriptMode, WithoutTheHostsMessagesThePlacesAreTheSame) {
  const auto program = Home.Path / "program";
  std::filesystem::create_directories(program);
  std::filesystem::copy(CLI, program / "cli");
  std::ofstream(program / "CalcMsg.txt") << "1202\tError\n";
  WriteSettings("Quorvane 1000.ost", "\"Settings\"\n\"SystemSpeed\",\"fast\"\n");
  const std::string command = "printf 'keys 1+.5\\nkey =\\nquit\\n' | " + (program / "cli").string() +
                              " --script --home '" + HomeFolder() + "' > " + (Home.Path / "out.txt").string();
  EXPECT_EQ(std::system(command.c_str()), 0);
  EXPECT_NE(ReadAll(Home.Path / "out.txt").find("\"display\":\"1.5\""), std::string::npos);
  EXPECT_NE(ErrorLog().find("SystemSpeed"), std::string::npos);
  EXPECT_TRUE(std::filesystem::exists(OwnSettings()));
}

TEST_F(ScriptMode, APipeInPlaceOfASettingsFileIsNotWaitedFor) {
  WriteSettings("Calc.ost", "");
  std::filesystem::remove(OwnSettings());
  ASSERT_EQ(::mkfifo(OwnSettings().c_str(), 0600), 0);
  EXPECT_EQ(Run("key 7\n").Lines.at(0)["display"], "7");
  EXPECT_NE(ErrorLog().find("it is no plain file"), std::string::npos);
}

TEST_F(ScriptMode, AnEndlessFileAndAPipeForALogStopNothing) {
  const std::filesystem::path home = HomeFolder();
  std::filesystem::create_directories(home / "Documents/QVES/Temporary");
  std::ofstream(home / "huge.txt").put('7');
  std::filesystem::resize_file(home / "huge.txt", std::uintmax_t{1} << 40);  // mostly a hole
  const std::string import = "keys 5a\nanswer " + (home / "huge.txt").string() + "\nmenu 302\nkey Ctrl+d\n";
  EXPECT_EQ(Run(import, "--view statistics").Lines.at(3)["spoken"][0]["text"], "Data list, 5");
  EXPECT_NE(ErrorLog().find("huge.txt: it is too large"), std::string::npos);
  std::filesystem::remove(home / "Documents/QVES/Temporary/Error Log.txt");
  ASSERT_EQ(::mkfifo((home / "Documents/QVES/Temporary/Error Log.txt").c_str(), 0600), 0);
  EXPECT_EQ(Run(import, "--view statistics").Lines.at(3)["focus"], "lvwData");
}

TEST_F(ScriptMode, WrongOptionsAreRefused) {
  for (const char* options :
       {"--view other", "--today 2026-02-30", "--seed x", "--speech loud", "--nonsense", "--view",
        "--view standard --view other", "--today 2026-01-31 --today x", "--seed 1 --seed x",
        "--speech off --speech loud", "--home /dev/null/x", "--decimal-comma=1"})
    EXPECT_EQ(Run("", options).Status, 2) << options;
}

TEST_F(ScriptMode, TheCommaTypesThePointWhereItIsTold) {
  ::setenv("LC_ALL", "de_DE.UTF-8", 1);  // which is not asked
  const std::string commas = "keys 1,5\nquit\n";
  EXPECT_EQ(Run(commas).Lines.at(0)["display"], "15");
  EXPECT_EQ(Run(commas, "--decimal-comma").Lines.at(0)["display"], "1.5");
  ::unsetenv("LC_ALL");
  EXPECT_EQ(ReadAll(OwnSettings()), "\"Calc Settings\"\n\"CalcView\",2\n");
}

TEST_F(ScriptMode, NothingOutsideTheHomeIsTouched) {
  const auto outside = Home.Path / "outside";
  std::filesystem::create_directories(outside);
  std::filesystem::create_directories(Home.Path / "home/.config/QVES");
  std::ofstream(Home.Path / "home/.config/QVES/registry.ini")
      << "[Software\\QVES\\Quorvane 1000]\nDocuments=" << outside.string() << "\n";
  WriteSettings("Quorvane 1000.ost", "\"Settings\"\n\"SystemSpeed\",\"fast\"\n");
  Run("quit\n");
  EXPECT_TRUE(std::filesystem::is_empty(outside));
  EXPECT_NE(ErrorLog().find("SystemSpeed"), std::string::npos);
}

TEST_F(ScriptMode, AFolderThatCannotBeWrittenIsSaidAndTheRunEnds) {
  std::filesystem::create_directories(Home.Path / "home/.config");
  std::ofstream(Home.Path / "home/.config/QVES") << "a file where a folder should be";
  EXPECT_EQ(Run("keys 7+5\nkey =\nquit\n").Status, 0);
  EXPECT_NE(ErrorLog().find("Calc.ost: cannot be written"), std::string::npos);
}

TEST_F(ScriptMode, ASignalEndsItInOrderBusyOrWaiting) {
  const std::string pipe = Home.Path / "pipe";
  ASSERT_EQ(::mkfifo(pipe.c_str(), 0600), 0);
  const std::string ended = std::string("timeout --preserve-status -k 5 0.5 ") + CLI + " --script --home '" +
                            HomeFolder() + "' > /dev/null";
  for (const std::string& command : {"yes 'key 7' 2> /dev/null | " + ended, ended + " 0<> " + pipe}) {
    std::filesystem::remove(OwnSettings());
    EXPECT_EQ(WEXITSTATUS(std::system(command.c_str())), 128 + SIGTERM);
    EXPECT_TRUE(std::filesystem::exists(OwnSettings()));
  }
}

}  // namespace
}  // namespace qves
