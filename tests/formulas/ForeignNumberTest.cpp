#include <gtest/gtest.h>

#include <chrono>
#include <string>

#include "formulas/ForeignNumber.h"
#include "model/ArithmeticFault.h"

namespace qves {
namespace {

constexpr ForeignStyle Point{};
constexpr ForeignStyle Comma{NumberBase::Decimal, true};
constexpr ForeignStyle Hex{NumberBase::Hexadecimal, false};
constexpr ForeignStyle Octal{NumberBase::Octal, false};
constexpr ForeignStyle Binary{NumberBase::Binary, false};
constexpr auto No = std::nullopt;

struct Row {
  std::string Text;
  std::optional<double> Value;
};

TEST(ForeignNumber, WhateverTheLocale) {
  const Row rows[] = {
      {"1,234.50", 1234.5},
      {"1.234,50", 1234.5},
      {"1 234,50", 1234.5},
      {"1'234.50", 1234.5},
      {"1\u2019234,50", 1234.5},
      {"1\u00A0234\u00A0567,5", 1234567.5},
      {"1\u202F234,567", 1234.567},
      {"1\u2009234", 1234},
      {"12,34,567.8", 1234567.8},
      {"1,23,45,678", 12345678},
      {"1,2345,6789", 123456789},
      {"1.234.567", 1234567},
      {"1,234,567", 1234567},
      {"1,5", 1.5},
      {"12,34", 12.34},
      {"0,123", 0.123},
      {"1234,567", 1234.567},
      {"1.2345", 1.2345},
      {".125", 0.125},
      {",125", 0.125},
      {"5.", 5},
      {"007", 7},
      {" \t42\r\n", 42},
      {"\u3000-\u00A042\u2003", -42},
      {"\u22121.5", -1.5},
      {"+3", 3},
      {"12.5-", -12.5},
      {"12.5 \u2212", -12.5},
      {"(1,234.50)", -1234.5},
      {"( 7 )", -7},
      {"-0", 0},
      {"$1,234.50", 1234.5},
      {"-$5", -5},
      {"$-5", -5},
      {"($5)", -5},
      {"$ (5)", -5},
      {"1.234,50 \u20AC", 1234.5},
      {"1.234,50- \u20AC", -1234.5},
      {"1.234,50 \u20AC-", -1234.5},
      {"\u00A35", 5},
      {"\uFFE512", 12},
      {"\u20B91,00,000", 100000},
      {"5\uFDFC", 5},
      {"\U0001ECB0 5", 5},
      {"25%", 0.25},
      {"12,5 %", 0.125},
      {"%50", 0.5},
      {"(50%)", -0.5},
      {"50\uFF05", 0.5},
      {"1E3", 1000},
      {"-2,5e-3", -0.0025},
      {"1.5E\u22122", 0.015},
      {"1,234.5e+1", 12345},
      {"1.234E3", 1234},
      {"1,234E3", 1234},
      {"0.e+0", 0},
      {"1e-400", 0},
      {"0xFF", 255},
      {"0Xdead beef", -559038737},
      {"&h10", 16},
      {"&O17", 15},
      {"&o177777", -1},
      {"0b101", 5},
      {"0b1010'1010", 170},
      {"0xFFFF", -1},
      {"-0x10", -16},
      {std::string(999, '0') + "5", 5},

      {"", No},
      {" ", No},
      {"-", No},
      {"$", No},
      {"%", No},
      {".", No},
      {"()", No},
      {"E5", No},
      {"1E", No},
      {"1E-", No},
      {"5,-", No},
      {"5.\u2013 \u20AC", No},
      {"--5", No},
      {"(-5)", No},
      {"-(5)", No},
      {"((5))", No},
      {"(5", No},
      {"5+", No},
      {"$5$", No},
      {"5%%", No},
      {"20$00", No},
      {"12 34", No},
      {"1  234", No},
      {"1,23.5", No},
      {"1234,567.8", No},
      {",234,567", No},
      {"1,234,56", No},
      {"1,234 567", No},
      {"1 234'567", No},
      {"1.234.567'890", No},
      {"1,234.567.890", No},
      {"12.04.2007", No},
      {"2007-04-12", No},
      {"12:30", No},
      {"1/2", No},
      {"5 EUR", No},
      {"EUR 5", No},
      {"FF", No},
      {"0x", No},
      {"0xG", No},
      {"0x1.5", No},
      {"0x123456789", No},
      {"0b102", No},
      {"&O8", No},
      {"nan", No},
      {"inf", No},
      {"1\n2", No},
      {"1\t234", No},
      {"1E309", No},
      {"-" + std::string(400, '9'), No},
      {std::string("5\0", 2), No},
      {"5\xE2\x82", No},
      {"5\x82\xAC", No},
      {"5\xA0", No},
      {"5\xFF", No},
      {std::string(1000, '0') + "5", No},
  };
  for (const auto& row : rows) {
    EXPECT_EQ(ReadForeignNumber(row.Text, Point), row.Value) << row.Text;
    EXPECT_EQ(ReadForeignNumber(row.Text, Comma), row.Value) << row.Text << " with a decimal comma";
  }
}

TEST(ForeignNumber, TheLocaleDecidesWhereASeparatorCouldBeEither) {
  const struct {
    const char* Text;
    double WithPoint;
    double WithComma;
  } rows[] = {
      {"1,234", 1234, 1.234},          {"1.234", 1.234, 1234},       {"-$123,456", -123456, -123.456},
      {"(1.234 %)", -0.01234, -12.34}, {"999,999", 999999, 999.999}, {"12.000", 12, 12000},
  };
  for (const auto& row : rows) {
    EXPECT_EQ(ReadForeignNumber(row.Text, Point), row.WithPoint) << row.Text;
    EXPECT_EQ(ReadForeignNumber(row.Text, Comma), row.WithComma) << row.Text;
  }
}

TEST(ForeignNumber, BareDigitsAreOfTheNumberBase) {
  const struct {
    ForeignStyle Style;
    const char* Text;
    std::optional<double> Value;
  } rows[] = {
      {Hex, "DEADBEEF", -559038737},
      {Hex, "deadbeef", -559038737},
      {Hex, "100", 256},
      {Hex, "1E5", 0x1E5},
      {Hex, "FFFF", -1},
      {Hex, "0b101", 0xB101},
      {Hex, "0x1F", 31},
      {Hex, "&O17", 15},
      {Hex, "-10", -16},
      {Hex, "DE AD", 0xDEAD - 0x10000 + 0.0},
      {Hex, "1.5", No},
      {Hex, "1,234", No},
      {Octal, "17", 15},
      {Octal, "18", No},
      {Octal, "0b101", 5},
      {Octal, "0xFF", 255},
      {Binary, "1111 0000", 240},
      {Binary, "102", No},
      {Binary, "&hFF", 255},
      {Binary, "0b11", 3},
  };
  for (const auto& row : rows) EXPECT_EQ(ReadForeignNumber(row.Text, row.Style), row.Value) << row.Text;
  for (const char* beyond : {"1FFFFFFFF", "0x1FFFFFFFF", "-&H123456789"})
    EXPECT_THROW(ReadForeignNumber(beyond, Hex), ArithmeticFault) << beyond;
}

TEST(ForeignNumber, WhichDecimalMarkATextShows) {
  const struct {
    const char* Text;
    char Mark;
  } rows[] = {
      {"1,5", ','}, {"1.234,5", ','}, {"1.234.567", ','}, {"0,123", ','}, {"(5,0 \u20AC)", ','},
      {"1.5", '.'}, {"1,234.5", '.'}, {"1,234,567", '.'}, {"12", 0},      {"1,234", 0},
      {"1.234", 0}, {"1 234", 0},     {"a.b", 0},         {"1,23,4", 0},  {"0x10", 0},
  };
  for (const auto& row : rows) EXPECT_EQ(ShownDecimalMark(row.Text), row.Mark) << row.Text;
}

TEST(ForeignNumber, AHugeTextEndsAtOnce) {
  const auto start = std::chrono::steady_clock::now();
  for (const char c : {' ', '0', '(', '\n', '\xC2'})
    EXPECT_EQ(ReadForeignNumber(std::string(20'000'000, c), Point), No);
  EXPECT_LT(std::chrono::steady_clock::now() - start, std::chrono::seconds(2));
}

}  // namespace
}  // namespace qves
