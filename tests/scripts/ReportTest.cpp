// Runs the statistics over each folder of tests/reports and compares the report that is written, byte by
// byte, with the one that other programs have computed.
#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <sstream>

#include "TemporaryFolder.h"
#include "terminal/ScriptSession.h"

namespace qves {
namespace {

namespace fs = std::filesystem;

std::string Content(const fs::path& path) {
  std::stringstream content;
  content << std::ifstream(path, std::ios::binary).rdbuf();
  return content.str();
}

class Reports : public testing::TestWithParam<fs::path> {
 protected:
  void Type(const std::string& command) { Answer = Session().Run(1, command); }

  ScriptSession& Session() {
    if (Running) return *Running;
    Options options;
    options.View = StatisticsView;
    options.Home = Home.Path;
    Running = std::make_unique<ScriptSession>(options);
    return *Running;
  }

  void Import(const std::string& name) {
    if (!fs::exists(GetParam() / name)) return;
    fs::copy_file(GetParam() / name, Home.Path / name);
    Type("answer " + (Home.Path / name).string());
    Type("menu 302");
  }

  /// "df 7.9", "alpha 0.05", "ignore-zero": after the import, which would leave the zeros out.
  void ApplySettings() {
    std::ifstream settings(GetParam() / "settings.txt");
    for (std::string word, number; settings >> word;) {
      if (word == "ignore-zero") {
        Type("click cbIgnoreZero");
        continue;
      }
      settings >> number;
      Type("keys " + number);
      Type(word == "df" ? "key d" : "key p");
    }
  }

  TemporaryFolder Home;
  std::unique_ptr<ScriptSession> Running;
  std::string Answer;
};

TEST_P(Reports, AreWhatOtherProgramsCompute) {
  Import("list1.txt");
  Type("click cbUseList2");
  Import("list2.txt");
  ApplySettings();
  Type("key u");
  const auto files = nlohmann::json::parse(Answer)["files"];
  ASSERT_EQ(files.size(), 1) << Answer;
  const fs::path report = files[0].get<std::string>();
  EXPECT_EQ(report.filename(), "Result.txt");
  EXPECT_EQ(Content(report), Content(GetParam() / "Result.txt"));
}

std::vector<fs::path> Folders() {
  std::vector<fs::path> folders;
  for (const auto& entry : fs::directory_iterator(fs::path(PROJECT_DIR) / "tests" / "reports"))
    if (entry.is_directory()) folders.push_back(entry.path());
  return folders;
}

std::string TestName(const testing::TestParamInfo<fs::path>& info) {
  std::string name = info.param.filename();
  for (char& c : name)
    if (c == '-') c = '_';
  return name;
}

INSTANTIATE_TEST_SUITE_P(All, Reports, testing::ValuesIn(Folders()), TestName);

}  // namespace
}  // namespace qves
