#include <gtest/gtest.h>

#include "FakePlatform.h"
#include "services/ServiceSet.h"

namespace qves {
namespace {

TEST(Messages, LinesEscapesAndReplacements) {
  FakePlatform outside;
  outside.Files.Content["/program/A.txt"] =
      "\xEF\xBB\xBF# comment\n\n1\tone\r\n2\ta\\nb\\tc\\\\d\n3\t  blanks "
      "\n1\tlater\n4\t\xC3\xA9\n5\t\n32767\tlast\n";
  outside.Files.Content["B.txt"] = "3\tfrom the current folder\n";
  outside.Files.Content["/program/B.txt"] = "3\tfrom the program's folder\n";
  ServiceSet set(outside.All);
  MessageStore& messages = set.All.Messages;
  messages.LoadMessageFile("A.txt");
  messages.LoadMessageFile("missing.txt");
  EXPECT_EQ(messages.GetMessage(1), "later");
  EXPECT_EQ(messages.GetMessage(2), "a\nb\tc\\d");
  EXPECT_EQ(messages.GetMessage(3), "  blanks ");
  EXPECT_EQ(messages.GetMessage(4), "\xC3\xA9");
  EXPECT_EQ(messages.GetMessage(32767), "last");
  EXPECT_EQ(messages.GetMessage(77), "");
  messages.LoadMessageFile("B.txt");
  EXPECT_EQ(messages.GetMessage(3), "from the current folder");
}

TEST(Messages, MalformedLinesAreSkippedAndLoggedOnceWhenTheLogIsKnown) {
  FakePlatform outside;
  outside.Files.Content["/program/A.txt"] =
      "1\tgood\nno tab\nx\ttext\n40000\ttext\n-1\ttext\n2\tbad "
      "\\q\n3\tcut\\\n4\t\xFF\n5\t\xED\xA0\x80\n60\tgood\n";
  ServiceSet set(outside.All);
  for (int load = 0; load < 2; ++load) set.All.Messages.LoadMessageFile("A.txt");
  EXPECT_EQ(outside.ErrorLog(), "") << "the folder is not known yet";
  set.All.SettingsStore.ReadSettings();
  const std::string log = outside.ErrorLog();
  EXPECT_EQ(std::count(log.begin(), log.end(), '\n'), 8) << log;
  EXPECT_NE(log.find("\t2\t/program/A.txt:2: "), std::string::npos) << log;
  EXPECT_NE(log.find("/program/A.txt:9: "), std::string::npos) << log;
  EXPECT_EQ(set.All.Messages.GetMessage(60), "good");
}

TEST(Messages, PlaceholdersAreFilledInTurn) {
  const struct {
    const char* Text;
    std::vector<std::string> Values;
    const char* Filled;
  } rows[] = {{"%% of %%", {"1", "2"}, "1 of 2"},
              {"%% of %%", {"%%"}, "%% of %%"},
              {"value  %%", {"7", "8"}, "value  7"},
              {"%", {"7"}, "%"},
              {"%%%%%", {"a", "b"}, "ab%"}};
  for (const auto& row : rows) EXPECT_EQ(FillPlaceholders(row.Text, row.Values), row.Filled);
}

}  // namespace
}  // namespace qves
