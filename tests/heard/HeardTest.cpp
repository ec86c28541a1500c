// Plays the tables beside this file and compares what a voice makes of each text with what it makes of the
// same text in words: its phonemes, in two kinds of English and, where the table has the words, in German.
// The head of standard.heard tells how to add a row. QVES_HEARD=text plays what is spoken in place of what
// the voice is given, to see what the voice would make of it.
#include <gtest/gtest.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <map>
#include <memory>
#include <set>
#include <utility>

#include "../scripts/TemporaryFolder.h"
#include "Voice.h"
#include "speech/Pauses.h"
#include "terminal/ScriptSession.h"
#include "text/Text.h"

namespace qves {
namespace {

namespace fs = std::filesystem;
using Json = nlohmann::ordered_json;

struct Row {
  std::string Place;                         ///< file, line and command
  std::map<std::string, std::string> Words;  ///< of "en" and perhaps "de"
  std::string Text;                          ///< what the voice is given, with the back ends' pauses
};

std::string AfterFirstWord(const std::string& line) {
  const std::size_t blank = line.find(' ');
  return blank == std::string::npos ? "" : line.substr(blank + 1);
}

/// The lines in which there is anything to hear.
std::vector<std::string> LinesOf(const std::string& text) {
  std::vector<std::string> lines;
  std::istringstream stream(ReplaceAll(text, "\r", "\n"));
  for (std::string line; std::getline(stream, line);)
    if (line.find_first_not_of(" ,") != std::string::npos) lines.push_back(line);
  return lines;
}

/// Plays a table and gives each row its text.
class Player {
 public:
  explicit Player(const fs::path& table) {
    std::ifstream stream(table);
    std::string line;
    for (int number = 1; std::getline(stream, line); ++number) {
      Place = table.filename().string() + ":" + std::to_string(number) + " ";
      if (!line.empty() && line[0] != '#') Play(line);
    }
    GiveTexts();
  }

  std::vector<Row> Rows;
  std::vector<Row> LongTexts;  ///< what the voice is given in several lines, each text whole

 private:
  void Play(const std::string& line) {
    if (line.starts_with("  [de] ")) {
      Rows.back().Words["de"] = line.substr(7);
      return;
    }
    const std::size_t end = line.find(" => ");
    if (!line.starts_with("  ")) {
      GiveTexts();
      Command = line.substr(0, end);
      if (!Prepare(AfterFirstWord(Command))) Perform();
    }
    if (end == std::string::npos) return;
    Rows.push_back({Place + Command, {{"en", line.substr(end + 4)}}, ""});
    ++Waiting;
  }

  /// The rows of a command are the last lines that were heard.
  void GiveTexts() {
    const std::size_t count = std::exchange(Waiting, 0);
    if (Heard.size() < count) {
      ADD_FAILURE() << Place << Command << ": less is heard than the table says";
      return;
    }
    for (std::size_t back = count; back > 0; --back)
      Rows[Rows.size() - back].Text = Heard[Heard.size() - back];
  }

  /// False when the command is one of script mode.
  bool Prepare(const std::string& value) {
    if (Command.starts_with("== ")) {
      Session.reset();
      Home = std::make_unique<TemporaryFolder>();
      Own = Host = "";
      StartOptions = {};
    } else if (Command.starts_with("view ")) {
      SetView(StartOptions, value);
    } else if (Command.starts_with("set ")) {
      Own += value + "\n";
    } else if (Command.starts_with("host ")) {
      Host += value + "\n";
    } else if (Command.starts_with("file ")) {
      std::ofstream(Home->Path / "list.txt") << ReplaceAll(value, "\\n", "\n");
    } else {
      return false;
    }
    return true;
  }

  void Start() {
    const fs::path folder = Home->Path / ".config/QVES/Settings";
    fs::create_directories(folder);
    std::ofstream(folder / "Calc.ost") << "\"Calc Settings\"\n" << Own;
    if (!Host.empty()) std::ofstream(folder / "Quorvane 1000.ost") << "\"Settings\"\n" << Host;
    StartOptions.Home = Home->Path;
    StartOptions.Voiced = true;
    StartOptions.Seed = 1;
    StartOptions.Today = Date{2026, 1, 31};
    Session = std::make_unique<ScriptSession>(StartOptions);
  }

  void Perform() {
    const char* field = std::getenv("QVES_HEARD") ? std::getenv("QVES_HEARD") : "voiced";
    if (!Session) Start();
    const Json report = Json::parse(Session->Run(1, ReplaceAll(Command, "~", Home->Path.string())));
    EXPECT_FALSE(report.contains("error")) << Place << Command;
    Heard.clear();
    for (const Json& spoken : report["spoken"]) {
      const std::string text = WithPauses(spoken.value(field, ""), {}).Text;
      const std::vector<std::string> lines = LinesOf(text);
      Heard.insert(Heard.end(), lines.begin(), lines.end());
      if (lines.size() > 1) LongTexts.push_back({Place + Command, {}, text});
    }
  }

  std::vector<std::string> Heard;  ///< the lines that the command gave
  std::size_t Waiting = 0;         ///< rows of the command that have no text yet
  std::string Place, Command, Own, Host;
  std::unique_ptr<TemporaryFolder> Home;
  Options StartOptions;
  std::unique_ptr<ScriptSession> Session;
};

std::vector<fs::path> Tables() {
  std::vector<fs::path> tables;
  for (const auto& entry : fs::directory_iterator(fs::path(PROJECT_DIR) / "tests" / "heard"))
    if (entry.path().extension() == ".heard") tables.push_back(entry.path());
  return tables;
}

class HeardTable : public testing::TestWithParam<fs::path> {
 protected:
  /// How many of the rows do not sound like their words in one of the voices.
  static std::size_t CountWrong(std::vector<Row>& rows) {
    std::set<std::string> wrong;
    for (const auto& [language, words] : {std::pair("en-us", "en"), {"en-gb", "en"}, {"de", "de"}}) {
      const Voice voice(language);
      for (Row& row : rows) {
        if (!row.Words.contains(words)) continue;
        const std::string heard = voice.Pronounce(row.Text);
        const std::string wanted = voice.PronounceWords(row.Words[words]);
        if (heard == wanted) continue;
        wrong.insert(row.Place + row.Words["en"]);
        ADD_FAILURE() << row.Place << " (" << language << ")\n  given  " << row.Text << "\n  words  "
                      << row.Words[words] << "\n  heard  " << heard << "\n  wanted " << wanted;
      }
    }
    return wrong.size();
  }
};

TEST_P(HeardTable, SoundsLikeItsWords) {
  Player table(GetParam());
  const std::size_t wrong = CountWrong(table.Rows);
  std::cout << table.Rows.size() - wrong << " of " << table.Rows.size() << " rows are heard right\n";
}

TEST_P(HeardTable, HasAPauseBetweenTheLinesOfAText) {
  const Player table(GetParam());
  const Voice voice("en-us");
  for (const Row& row : table.LongTexts) {
    std::vector<std::string> lineByLine;
    for (const std::string& line : LinesOf(row.Text))
      for (const std::string& clause : voice.Clauses(line)) lineByLine.push_back(clause);
    EXPECT_TRUE(voice.Clauses(row.Text) == lineByLine) << row.Place << ": lines run together\n" << row.Text;
  }
}

std::string TestName(const testing::TestParamInfo<fs::path>& info) {
  return info.param.stem();
}

INSTANTIATE_TEST_SUITE_P(All, HeardTable, testing::ValuesIn(Tables()), TestName);

TEST(HeardTables, AreManyRowsAndNotTheSame) {
  std::map<std::string, int> times;
  std::size_t count = 0;
  for (const fs::path& table : Tables()) {
    std::ifstream stream(table);
    for (std::string line; std::getline(stream, line);) {
      const std::size_t words = line.find(" => ");
      if (line[0] == '#' || words == std::string::npos) continue;
      ++count;
      EXPECT_LE(++times[line.substr(words)], 6) << table << ": " << line;
    }
  }
  EXPECT_GE(count, 300);
}

}  // namespace
}  // namespace qves
