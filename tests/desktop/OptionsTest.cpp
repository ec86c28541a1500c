#include <gtest/gtest.h>

#include "desktop/Options.h"
#include "services/AppSettings.h"

namespace qves {
namespace {

TEST(DesktopOptions, ValuesAndToolkitArguments) {
  std::string error;
  const auto options = ParseOptions({"--view", "statistics", "-style", "fusion", "--speech", "off"}, error);
  ASSERT_TRUE(options) << error;
  EXPECT_EQ(options->View, StatisticsView);
  EXPECT_EQ(options->Speech, SpeechChoice::Off);
  EXPECT_EQ(options->ToolkitArguments, (std::vector<std::string>{"-style", "fusion"}));
}

TEST(DesktopOptions, FaultsNameTheOption) {
  for (const std::vector<std::string>& wrong :
       std::vector<std::vector<std::string>>{{"--view", "round"},
                                             {"--view", "standard", "--view", "round"},
                                             {"--view"},
                                             {"--speech", ""},
                                             {"--home", "/dev/null/x"},
                                             {"--script"}}) {
    std::string error;
    EXPECT_FALSE(ParseOptions(wrong, error));
    EXPECT_NE(error.find(wrong.front()), std::string::npos) << error;
  }
}

}  // namespace
}  // namespace qves
