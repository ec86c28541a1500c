// Runs every script beside this file, and those of the documents. A line is a command and, behind "->", all
// that it does, or below it where that is too long:
//   [now], +[queued], stop    every spoken text in order; "help 354" is the long message of that id
//   tape                      a line added to the tape
//   sound                     an event that sounded
//   copied                    a text that went to the clipboard
//   display, memory, focus    when they differ from before
//   error                     when the line is no command
// "3x" is the same three times. "key" takes several keys, and tells together what they do.
// "== title" starts a new calculator; right below it, "view NAME" is the view that it opens, and lines
// "host KEY,VALUE" are its host settings file, lines "own KEY,VALUE" its own. "file NAME TEXT" writes a file
// of the user's, with \n in the text for a line end; "~" in a command is the folder of such files.
// QVES_UPDATE_SCRIPTS=1 rewrites the scripts from what the calculator does: read the difference before you
// keep it.
#include <gtest/gtest.h>

#include <algorithm>
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
using Texts = std::vector<std::string>;
using Ids = std::map<std::string, std::string>;

constexpr std::string_view Arrow = " -> ";
constexpr std::size_t LongEnough = 60;  ///< bytes of a text that is not told twice

/// The text on one line; of a whole document its two ends.
std::string OnOneLine(std::string text) {
  constexpr std::size_t longest = 400, end = 30;
  const std::size_t size = text.size();
  if (size > longest)
    text =
        text.substr(0, end) + " [...] " + text.substr(size - end) + " (" + std::to_string(size) + " bytes)";
  return ReplaceAll(ReplaceAll(text, "\r", "\\r"), "\n", "\\n");
}

/// The messages that are told by their ids, with these.
Ids LongMessages() {
  Ids ids;
  std::ifstream file(fs::path(PROJECT_DIR) / "data" / "CalcMsg.txt");
  for (std::string line; std::getline(file, line);) {
    const std::size_t tab = line.find('\t');
    if (tab != std::string::npos && line.size() - tab > LongEnough)
      ids.emplace(line.substr(tab + 1), line.substr(0, tab));
  }
  return ids;
}

std::string Said(const Json& said, const Ids& ids) {
  const std::string how = said["how"];
  if (how == "stop") return how;
  const std::string text = said["text"];
  const auto id = ids.find(text);
  return (how == "queued" ? "+" : "") +
         (id != ids.end() ? "help " + id->second : "[" + OnOneLine(text) + "]");
}

/// The texts one after another, each as often as it follows itself.
std::string Counted(const Texts& texts) {
  std::string out;
  for (auto text = texts.begin(); text != texts.end();) {
    const auto next = std::find_if(text, texts.end(), [&](const auto& other) { return other != *text; });
    if (!out.empty()) out += " ";
    if (next - text > 1) out += std::to_string(next - text) + (text->front() == '[' ? "x" : "x ");
    out += *text;
    text = next;
  }
  return out;
}

std::string Joined(const Texts& texts, std::string_view between) {
  std::string out;
  for (const std::string& text : texts) out += (out.empty() ? "" : std::string(between)) + text;
  return out;
}

/// The command and what it does, on one line where it fits.
std::string Written(const std::string& command, const Texts& effects) {
  constexpr std::size_t column = 20, longest = 120;
  if (effects.empty()) return command + "\n";
  std::string line = command;
  line.resize(std::max(line.size(), column), ' ');
  line += std::string(Arrow) + Joined(effects, " | ");
  return (line.size() <= longest ? line : command + "\n  " + Joined(effects, "\n  ")) + "\n";
}

/// What a line has the calculator do: one command, or one for each of several keys.
Texts Commands(const std::string& line) {
  if (!line.starts_with("key ")) return {line};
  Texts commands;
  std::istringstream keys(line.substr(4));
  for (std::string key; keys >> key;) commands.push_back("key " + key);
  return commands;
}

class ScriptRunner {
 public:
  explicit ScriptRunner(Ids messages) : Messages(std::move(messages)) {}

  /// What the script should look like, from what the calculator does.
  std::string Run(std::istream& script) {
    std::string out;
    for (std::string line; std::getline(script, line);) {
      if (line.starts_with("  ")) continue;
      const std::string command = line.substr(0, line.find_last_not_of(' ', line.find(Arrow)) + 1);
      out += Prepare(command) ? command + "\n" : Written(command, Perform(command));
    }
    return out;
  }

 private:
  /// False when the line is a command.
  bool Prepare(const std::string& line) {
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
    else
      return line.empty() || line[0] == '#';
    return true;
  }

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

  Texts Perform(const std::string& line) {
    if (!Session) Start();
    Texts said, sounds, effects;
    Json report;
    for (const std::string& command : Commands(line)) {
      report = Json::parse(Session->Run(1, ReplaceAll(command, "~", Home->Path.string())));
      for (const Json& text : report["spoken"]) said.push_back(Said(text, Messages));
      for (const Json& sound : report["sounds"]) sounds.push_back("sound " + sound.get<std::string>());
      for (const Json& tape : report.value("tape", Json::array()))
        effects.push_back("tape " + tape.get<std::string>());
      if (report.contains("clipboard"))
        effects.push_back("copied " + OnOneLine(report["clipboard"].get<std::string>()));
      if (report.contains("error")) effects.push_back("error " + report["error"].get<std::string>());
    }
    effects.insert(effects.begin(), {Counted(said), Counted(sounds)});
    effects.push_back(Changes(report));
    std::erase(effects, "");
    return effects;
  }

  std::string Changes(const Json& report) {
    Texts changes;
    for (auto& [name, before] : Before) {
      const Json now = report.value(name, Json());
      if (now == before) continue;
      changes.push_back(name + " " + Shown(now, report["spoken"]));
      before = now;
    }
    return Joined(changes, ", ");
  }

  static std::string Shown(const Json& now, const Json& spoken) {
    if (!now.is_string()) return "none";
    const std::string text = now;
    const bool isSaid =
        text.size() > LongEnough && !spoken.empty() && spoken.back().value("text", "") == text;
    return isSaid ? "as said" : OnOneLine(text);
  }

  Ids Messages;
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
  // Who reads the documents reads whole texts.
  const std::string actual =
      ScriptRunner(GetParam().starts_with("docs") ? Ids() : LongMessages()).Run(expected);
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
