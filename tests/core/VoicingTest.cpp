// What a voice is given for what is spoken.
#include <gtest/gtest.h>

#include "EnglishVoice.h"
#include "voicing/VoicedText.h"

namespace qves {
namespace {

std::string Voiced(std::string_view text, NumberReading reading = NumberReading::Natural,
                   int decimals = AllDecimals) {
  return MakeVoiced(text, {English, reading, decimals}).Text;
}

std::string VoicedValue(std::string_view leadIn, std::string_view value, ValueKind kind, bool apart = false) {
  const std::string text = std::string(leadIn) + std::string(value);
  return MakeVoiced(text, {English, NumberReading::Natural, AllDecimals, apart},
                    {leadIn.size(), value.size(), kind})
      .Text;
}

struct Row {
  const char* Spoken;
  const char* Heard;
};

TEST(Voicing, NumbersAndSigns) {
  const Row rows[] = {
      {"", ""},
      {"clear all", "clear all"},
      {"= 12", "equals 12"},
      {"2point236", "2 point 2 3 6"},
      {"2.2360679", "2 point 2 3 6, 0 6 7, 9"},
      {"2.2360", "2 point 2 3 6 0"},
      {"0point05", "0 point 0 5"},
      {"=  minus 6point5", "equals minus 6 point 5"},
      {" minus 6point5 is added", "minus 6 point 5 is added"},
      {"Min = -6.5,\nMax = 3", "Min equals minus 6 point 5,\nMax equals 3"},
      {"a  -17684.17", "a  minus 17684 point 1 7"},
      {"(-5) -5=-5", "(minus 5) minus 5 equals minus 5"},
      {"a-5, F10, x2.5", "a-5, F10, x2.5"},
      {"1E+20", "1 times ten to the 20"},
      {"1.5E-07", "1 point 5 times ten to the minus 7"},
      {"1point5E minus 07", "1 point 5 times ten to the minus 7"},
      {"1point5e+3", "1 point 5 times ten to the 3"},
      {"0pointe+0", "0 times ten to the 0"},
      {"2e minus 000", "2 times ten to the minus 0"},
      {"5E is a digit, 5e+ too", "5E is a digit, 5e+ too"},
      {"5point", "5point"},
      {"123456789012345", "123456789012345"},
      {"1234567890123456", "1, 2 3 4, 5 6 7, 8 9 0, 1 2 3, 4 5 6"},
      {"007", "0 0 7"},
      {"0000", "0, 0 0 0"},
      {"2 + 3 - 4 * 5 / 6", "2 plus 3 minus 4 times 5 divided by 6"},
      {"1+1, a*b, a / b", "1+1, a*b, a divided by b"},
      {"Sqr(5) = 2point236\r\nSqr( minus 1) (x)",
       "square root of 5 equals 2 point 2 3 6\r\nsquare root of minus 1 (x)"},
      {"mySqr(5)", "mySqr(5)"},
      {"\xC3\xA9=\xC3\xA9", "\xC3\xA9 equals \xC3\xA9"},
  };
  for (const Row& row : rows) EXPECT_EQ(Voiced(row.Spoken), row.Heard) << row.Spoken;
}

TEST(Voicing, ReadingsOfTheWholePart) {
  using enum NumberReading;
  const struct {
    NumberReading Reading;
    const char* Spoken;
    const char* Heard;
  } rows[] = {
      {Digits, "12345point67", "1 2 3 4 5 point 6 7"},
      {Pairs, "12345", "1, 23, 45"},
      {Pairs, "1234.5", "12, 34 point 5"},
      {Triples, "12345", "12, 345"},
      {Triples, "123456", "123, 456"},
      {Triples, " minus 7", "minus 7"},
      {Pairs, "007", "0 0 7"},
      {Digits, "1E+20", "1 times ten to the 20"},
      {Digits, "press F10", "press F10"},
      {Voice, "=  minus 6point5", "=  minus 6point5"},
  };
  for (const auto& row : rows) EXPECT_EQ(Voiced(row.Spoken, row.Reading), row.Heard) << row.Spoken;
}

TEST(Voicing, RoundedDecimals) {
  const struct {
    int Decimals;
    const char* Spoken;
    const char* Heard;
  } rows[] = {
      {2, "= 2point236", "equals about 2 point 2 4"},
      {2, "2.23", "2 point 2 3"},
      {2, " minus 2point675", "about minus 2 point 6 8"},
      {2, "999.999", "about 1000 point 0 0"},
      {4, "0.00001", "about 0 point 0 0 0 0"},
      {4, "-0.00001", "about 0 point 0 0 0 0"},
      {2, "1.23456E+20", "about 1 point 2 3 times ten to the 20"},
      {8, "0.333333333333333", "about 0 point 3 3 3, 3 3 3, 3 3"},
  };
  for (const auto& row : rows)
    EXPECT_EQ(Voiced(row.Spoken, NumberReading::Natural, row.Decimals), row.Heard) << row.Spoken;
}

TEST(Voicing, NumbersOfAHelpAreNeverRounded) {
  EXPECT_EQ(MakeVoiced("4.072004 is a date", {English, NumberReading::Natural, 2}, Prose).Text,
            "4 point 0 7 2, 0 0 4 is a date");
}

TEST(Voicing, ValuesThatAreNoPlainNumbers) {
  using enum ValueKind;
  const struct {
    const char* LeadIn;
    const char* Value;
    ValueKind Kind;
    const char* Heard;
  } rows[] = {
      {"= ", "11010101", BaseDigits, "equals 1 1 0 1, 0 1 0 1"},
      {"= ", "DEADBEEF", BaseDigits, "equals D E A, D, B E E F"},
      {"AS A ", "A", BaseDigits, "AS A A"},
      {"", "1BAD", BaseDigits, "1 B A, D"},
      {"", "101(", BaseDigits, "1 0 1 left paren"},
      {"value is  ", "((", Number, "value is  left paren left paren"},
      {"", "0", BaseDigits, "0"},
      {"", "1A plus. Value is BAD. A to the ADDER, 1E+20, 12", BaseDigits,
       "1 A, plus. Value is B A, D. A, to the ADDER, 1 times ten to the 20, 1 2"},
      {"", "begin 4.072004. end 12.312010.", DateNumber,
       "begin 4 point 0 7, 2 0 0 4. end 12 point 3 1, 2 0 1 0."},
      {"begin date ", "4.072004", DateNumber, "begin date 4 point 0 7, 2 0 0 4"},
      {"= ", "12point312010", DateNumber, "equals 12 point 3 1, 2 0 1 0"},
      {"= ", "Monday, Dec 27 2004", DateText, "equals Monday, December 27 2004"},
  };
  for (const auto& row : rows)
    EXPECT_EQ(VoicedValue(row.LeadIn, row.Value, row.Kind), row.Heard) << row.Value;
  EXPECT_EQ(Voiced("DEAD Dec 4.072004"), "DEAD Dec 4 point 0 7 2, 0 0 4") << "nobody guesses";
  EXPECT_EQ(VoicedValue("= ", "1 1 0 1 1", BaseDigits, true), "equals 1, 1 0 1 1");
  EXPECT_EQ(VoicedValue("", "1 0 and, F 1 2 A plus. Memory 1 1.", BaseDigits, true),
            "1 0 and, F 1 2 A, plus. Memory 1 1.");
  EXPECT_EQ(VoicedValue("= ", "Monday, Dec 2 7 2 0 0 4", DateText, true), "equals Monday, December 27 2004");
}

TEST(Voicing, DigitsThatWereSpokenApartBelongTogether) {
  const VoicingRules apart = {English, NumberReading::Digits, AllDecimals, true};
  EXPECT_EQ(MakeVoiced("= 1 2 3point4 5 6 7 8E+2 0", apart).Text,
            "equals 1 2 3 point 4 5 6, 7 8 times ten to the 20");
  EXPECT_EQ(MakeVoiced("May 27 2004, 5 of 12", apart).Text, "May 2 7 2 0 0 4, 5 of 1 2");
  const std::string item = "Data list, 1 2point2 5";
  EXPECT_EQ(MakeVoiced(item + " 2 of 5", apart, {11, item.size() - 11}).Text,
            "Data list, 1 2 point 2 5, 2 of 5")
      << "a value ends where its span does";
}

TEST(Voicing, MarksStayBeforeWhatTheyStoodBefore) {
  const std::string text = "A = -2.5. 3.25 is B.";
  const BookMark marks[] = {{0, 1}, {10, 2}, {15, 3}, {text.size(), 4}};
  const MarkedText voiced = MakeVoiced(text, {English}, {}, marks);
  EXPECT_EQ(voiced.Text, "A equals minus 2 point 5. 3 point 2 5 is B.");
  ASSERT_EQ(voiced.Marks.size(), 4U);
  const std::string behind[] = {"A equals", "3 point", "is B", ""};
  for (std::size_t i = 0; i < 4; ++i) {
    EXPECT_EQ(voiced.Marks[i].Number, marks[i].Number);
    EXPECT_TRUE(voiced.Text.substr(voiced.Marks[i].Offset).starts_with(behind[i])) << i;
  }
}

TEST(Voicing, BadInput) {
  VoiceWords words = English;
  words.HeardPoint.clear();
  words.Minus.clear();
  EXPECT_EQ(MakeVoiced("= -2.2360679 2236", {words}).Text, "equals -2.2360679 2236") << "no word is made up";
  words = English;
  words.Equals.clear();
  EXPECT_EQ(MakeVoiced("= -2.5", {words}).Text, "= -2.5") << "a message file without the new messages";
  const std::string long_ = "1" + std::string(399, '0');
  EXPECT_EQ(Voiced(long_).size(), 400 + 399 + 133U);
  EXPECT_EQ(Voiced("a\x01<b>&5.25\x7f"), "a\x01<b>&5 point 2 5\x7f") << "markup is the back end's business";
  EXPECT_EQ(Voiced("-"), "-");
  EXPECT_EQ(Voiced("5."), "5.");
  EXPECT_EQ(Voiced("1.E"), "1.E");
}

}  // namespace
}  // namespace qves
