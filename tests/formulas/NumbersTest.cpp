#include <gtest/gtest.h>

#include <limits>
#include <string>

#include "formulas/Numbers.h"
#include "model/ArithmeticFault.h"

namespace qves {
namespace {

TEST(Numbers, TextOfANumber) {
  const struct {
    double Value;
    const char* Text;
  } rows[] = {
      {0.0001, "0.0001"},
      {0.00001, "1E-05"},
      {123456789012345.0, "123456789012345"},
      {1e15, "1E+15"},
      {1e20, "1E+20"},
      {-1e-300, "-1E-300"},
      {2.23606797749979, "2.23606797749979"},
      {0.1 + 0.2, "0.3"},
      {-0.0, "0"},
      {999999999999999.5, "1E+15"},
      {1.7976931348623157e308, "1.79769313486232E+308"},
      {5e-324, "4.94065645841247E-324"},
  };
  for (const auto& row : rows) EXPECT_EQ(NumberToText(row.Value), row.Text);
}

TEST(Numbers, ValueOfAText) {
  const struct {
    std::string Text;
    double Value;
  } rows[] = {
      {"3.", 3},
      {".5", 0.5},
      {" -12.50 ", -12.5},
      {"+7", 7},
      {"1e3", 1000},
      {"-1E+", -1},
      {"2E", 2},
      {"1E-400", 0},
      {"-0", 0},
      {"0." + std::string(400, '0') + "1", 0},
      {"0E99999999999999999999", 0},
      {"1E-99999999999999999999", 0},
      {std::string(400, '0') + "5", 5},
      {"1" + std::string(300, '0'), 1e300},
      {"0." + std::string(320, '0') + "1E+322", 10},
  };
  for (const auto& row : rows) EXPECT_EQ(ParseNumber(row.Text), row.Value) << row.Text;
}

TEST(Numbers, NoNumber) {
  for (const char* text :
       {"", " ", "E", "(", ".", "-", "+-1", "1.2.3", "1E+2.", "FF", "1 2", "nan", "inf", "0x1", "1,5"})
    EXPECT_EQ(ParseNumber(text), std::nullopt) << text;
}

TEST(Numbers, TooLargeIsAFault) {
  for (const std::string& text : {std::string(310, '9'), std::string("1E+309"), std::string("-1e400"),
                                  std::string("1E99999999999999999999"), "0.0001E" + std::string("+320")})
    EXPECT_THROW(ParseNumber(text), ArithmeticFault) << text;
}

TEST(Numbers, WhenOneMoreDigitNoLongerCounts) {
  const std::string half = "0.5" + std::string(1300, '0');
  EXPECT_FALSE(IsBeyondADouble(half + "7")) << "the first digit behind an exact half may round it up";
  EXPECT_TRUE(IsBeyondADouble(half + "0"));
  EXPECT_TRUE(IsBeyondADouble(half + "77"));
  EXPECT_TRUE(IsBeyondADouble("-0." + std::string(1300, '7')));
  EXPECT_FALSE(IsBeyondADouble("0." + std::string(500, '7')));
  EXPECT_FALSE(IsBeyondADouble(std::string(1400, '7'))) << "an overflow has to be seen";
  EXPECT_FALSE(IsBeyondADouble("-1E+2." + std::string(1400, '7'))) << "and so has a text that is no number";
}

}  // namespace
}  // namespace qves
