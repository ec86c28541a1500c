// Runs every script beside this file, and those of the documents. A script holds commands and, indented below
// each, what it has to do:
//   said     every spoken text in order: [now], +[queued], stop
//   tape     a line added to the tape
//   display, memory, focus   when they differ from before
//   sounds   the events that sounded
//   error    when the line is no command
// "== title" starts a new calculator; right below it, "view NAME" is the view that it opens, and lines
// "host KEY,VALUE" are its host settings file, lines "own KEY,VALUE" its own. "file NAME TEXT" writes a file
// of the user's, with \n in the text for a line end; "~" in a command is the folder of such files.
// QVES_UPDATE_SCRIPTS=1 rewrites the scripts from what the calculator does: read the difference before you
// keep it.
#include <gtest/gtest.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <map>
#include <memory>
#include <sstream>

#include "TemporaryFolder.h"
#include "terminal/ScriptSession.h"
#include "text/Text.h"

namespace qves {
namespace {

namespace fs = std::filesystem;
using Json = nlohmann::ordered_json;

/// The text on one line; of a whole document its two ends.
std::string OnOneLine(std::string text) {
  constexpr std::size_t longest = 400, head = 120, tail = 60;
  const std::size_t size = text.size();
  if (size > longest)
    text =
        text.substr(0, head) + " [...] " + text.substr(size - tail) + " (" + std::to_string(size) + " bytes)";
  return ReplaceAll(ReplaceAll(text, "\r", "\\r"), "\n", "\\n");
}

std::string Said(const Json& spoken) {
  std::string out;
  for (const Json& said : spoken) {
    const std::string how = said["how"];
    const std::string text = OnOneLine(said.value("text", ""));
    out += how == "stop" ? " stop" : (how == "queued" ? " +[" : " [") + text + "]";
  }
  return out;
}

class ScriptRunner {
 public:
  /// What the script should look like, from what the calculator does.
  std::string Run(std::istream& script) {
    std::string out;
    for (std::string line; std::getline(script, line);) {
      if (line.starts_with("  ")) continue;
      out += line + "\n";
      if (line.starts_with("== "))
        Restart();
      else if (line.starts_with("view "))
        SetView(StartOptions, line.substr(5));
      else if (line.starts_with("host "))
        HostSettings += line.substr(5) + "\n";
      else if (line.starts_with("own "))
        OwnSettings += line.substr(4) + "\n";
      else if (line.starts_with("file "))
        WriteFile(line.substr(5));
      else if (!line.empty() && line[0] != '#')
        out += Perform(line);
    }
    return out;
  }

 private:
  void Restart() {
    Session.reset();
    Home = std::make_unique<TemporaryFolder>();
    HostSettings.clear();
    OwnSettings.clear();
    StartOptions = {};
  }

  void Start() {
    const fs::path folder = Home->Path / ".config/QVES/Settings";
    fs::create_directories(folder);
    if (!HostSettings.empty())
      std::ofstream(folder / "Quorvane 1000.ost") << "\"Settings\"\n" << HostSettings;
    if (!OwnSettings.empty()) std::ofstream(folder / "Calc.ost") << "\"Calc Settings\"\n" << OwnSettings;
    StartOptions.Home = Home->Path;
    StartOptions.Seed = 1;
    StartOptions.Today = Date{2026, 1, 31};
    Session = std::make_unique<ScriptSession>(StartOptions);
    const Json atStart = Json::parse(Session->Run(1, "state"));
    for (const char* name : {"display", "memory", "focus"}) Before[name] = atStart.value(name, Json());
  }

  void WriteFile(const std::string& nameAndText) {
    const std::size_t blank = nameAndText.find(' ');
    std::ofstream(Home->Path / nameAndText.substr(0, blank))
        << ReplaceAll(ReplaceAll(nameAndText.substr(blank + 1), "\\n", "\n"), "\\r", "\r");
  }

  std::string Perform(const std::string& line) {
    if (!Session) Start();
    const Json report = Json::parse(Session->Run(1, ReplaceAll(line, "~", Home->Path.string())));
    std::string out;
    if (report.contains("error")) out += "  error " + report["error"].get<std::string>() + "\n";
    if (!report["spoken"].empty()) out += "  said" + Said(report["spoken"]) + "\n";
    for (const Json& tape : report.value("tape", Json::array()))
      out += "  tape " + tape.get<std::string>() + "\n";
    for (const Json& sound : report["sounds"]) out += "  sounds " + sound.get<std::string>() + "\n";
    for (auto& [name, before] : Before) {
      const Json now = report.value(name, Json());
      if (now == before) continue;
      out += "  " + name + " " + (now.is_string() ? OnOneLine(now.get<std::string>()) : "none") + "\n";
      before = now;
    }
    return out;
  }

  std::unique_ptr<TemporaryFolder> Home;
  Options StartOptions;
  std::string HostSettings;
  std::string OwnSettings;
  std::unique_ptr<ScriptSession> Session;
  std::map<std::string, Json> Before;
};

class ScriptFiles : public testing::TestWithParam<std::string> {};

TEST_P(ScriptFiles, DoesWhatItSays) {
  const fs::path path = fs::path(PROJECT_DIR) / GetParam();
  std::stringstream expected;
  expected << std::ifstream(path).rdbuf();
  const std::string actual = ScriptRunner().Run(expected);
  EXPECT_EQ(actual, expected.str());
  if (std::getenv("QVES_UPDATE_SCRIPTS")) std::ofstream(path) << actual;
}

std::vector<std::string> AllScripts() {
  std::vector<std::string> names;
  const fs::path project = PROJECT_DIR;
  for (const fs::path& folder : {project / "tests" / "scripts", project / "docs"})
    for (const auto& entry : fs::recursive_directory_iterator(folder))
      if (entry.path().extension() == ".script") names.push_back(fs::relative(entry.path(), project));
  return names;
}

std::string TestName(const testing::TestParamInfo<std::string>& info) {
  std::string name = info.param;
  for (char& c : name)
    if (!std::isalnum(static_cast<unsigned char>(c))) c = '_';
  return name;
}

INSTANTIATE_TEST_SUITE_P(All, ScriptFiles, testing::ValuesIn(AllScripts()), TestName);

}  // namespace
}  // namespace qves
