#include <gtest/gtest.h>

#include <chrono>
#include <ostream>

#include "services/TextEncoding.h"
#include "views/statistics/Cells.h"
#include "views/statistics/TableFile.h"

namespace qves {

bool operator==(const TableColumn& a, const TableColumn& b) {
  return a.Name == b.Name && a.Values == b.Values && a.LinesLeftOut == b.LinesLeftOut;
}

void PrintTo(const TableColumn& column, std::ostream* out) {
  *out << column.Name << ": " << testing::PrintToString(column.Values) << ", left out "
       << column.LinesLeftOut;
}

namespace {

using Columns = std::vector<TableColumn>;
using Numbers = std::vector<double>;

struct File {
  std::string Text;
  Columns Expected;
};

TEST(TableFile, WhateverTheLocale) {
  const File files[] = {
      {"", {}},
      {"\n\n", {}},
      {"only words\nand more, of them; here\n", {}},
      {"42", {{"", {42}}}},
      {"x;y\n1,5;2\n-2,5;3\n", {{"x", {1.5, -2.5}}, {"y", {2, 3}}}},
      {"x;y\n1,234;2,5\n", {{"x", {1.234}}, {"y", {2.5}}}},
      {"x;y\n1,234;2.5\n", {{"x", {1234}}, {"y", {2.5}}}},
      {"1,5;2,5;3,5\n4,5;5,5;6,5", {{"", {1.5, 4.5}}, {"", {2.5, 5.5}}, {"", {3.5, 6.5}}}},
      {"x,y\n1,2\n3,4\n", {{"x", {1, 3}}, {"y", {2, 4}}}},
      {"x,y\n10,200\n20,300\n", {{"x", {10, 20}}, {"y", {200, 300}}}},
      {"x,y\n1.234,2.345\n", {{"x", {1.234}}, {"y", {2.345}}}},
      {"name,x\nRed wine,5\nNew York,6\n", {{"x", {5, 6}}}},
      {"Name, Age\nSmith, 5\n", {{"Age", {5}}}},
      {"\"x\",\"y\"\n\"1,5\",\"2,5\"\n", {{"x", {1.5}}, {"y", {2.5}}}},
      {"\"1,5\"\n\"2,5\"\n", {{"", {1.5, 2.5}}}},
      {"\"a \"\"b\"\", c\",y\n1,2\n", {{"a \"b\", c", {1}}, {"y", {2}}}},
      {"\"two\nlines\";y\n1;2\n", {{"two lines", {1}}, {"y", {2}}}},
      {"5\" pipe;y\n\"1\" ;2\n", {{"5\" pipe", {1}}, {"y", {2}}}},
      {"x\ty\r\n1,5\t2\r\n1.234,5\t\r\n", {{"x", {1.5, 1234.5}}, {"y", {2}, 1}}},
      {"\tMay\tJune\nNorth\t1\t2\nSouth\t3\t4\n", {{"May", {1, 3}}, {"June", {2, 4}}}},
      {"  x     y\n  1.5   2\n 10.25  -3 \n", {{"x", {1.5, 10.25}}, {"y", {2, -3}}}},
      {"1,5 2,5\n3,5 4,5\n", {{"", {1.5, 3.5}}, {"", {2.5, 4.5}}}},
      {"1.5, 2.5\n3.5, 4.5\n", {{"", {1.5, 3.5}}, {"", {2.5, 4.5}}}},
      {"1.5 \t 2.5\n3.5   4.5\n2 3\n", {{"", {1.5, 3.5, 2}}, {"", {2.5, 4.5, 3}}}},
      {"Value\n1,5\n2,5\n", {{"Value", {1.5, 2.5}}}},
      {"Net amount\n1 234,50\n12,00\n", {{"Net amount", {1234.5, 12}}}},
      {"1 234,50 \u20AC\n5,00 \u20AC", {{"", {1234.5, 5}}}},
      {"$1,234.50\n$5.25\n", {{"", {1234.5, 5.25}}}},
      {"Rate;Price\n12,5 %;1.234,50 \u20AC\n5%;(3,00 \u20AC)\n",
       {{"Rate", {0.125, 0.05}}, {"Price", {1234.5, -3}}}},
      {"x\r1\r2\r", {{"x", {1, 2}}}},
      {"\n\nx\n1\n\nn/a\n3\n\n\n", {{"x", {1, 3}, 2}}},
      {"x;y;\n1;2;\n3;4;\n;;\n", {{"x", {1, 3}}, {"y", {2, 4}}}},
      {"x;y\n1\n2;3;4\n5;6\n7;\n", {{"x", {1, 2, 5, 7}}, {"y", {3, 6}, 2}, {"", {4}, 3}}},
      {"Report of May;;\n\nname;x;y\nAnna;?;2\nBob;3;4\n", {{"x", {3}, 3}, {"y", {2, 4}, 2}}},
      {"Anna;5\nBob;6\n", {{"", {5, 6}}}},
      {"date;x\n12.04.2007;1\n13.04.2007;2\n", {{"x", {1, 2}}}},
      {"\xEF\xBB\xBFx;y\n1;2\n", {{"x", {1}}, {"y", {2}}}},
      {"Gr\xF6\xDF"
       "e;y\n1;2 \x80\n",
       {{"Gr\u00F6\u00DFe", {1}}, {"y", {2}}}},
      {std::string("\xFF\xFEx\0\n\0001\0,\0005\0\n\0", 14), {{"x", {1.5}}}},
      {std::string("\xFE\xFF\0x\0\n\0\x31\0\n", 10), {{"x", {1}}}},
      {std::string("\0\1\2\xFF;;\"\n\"", 9), {}},
  };
  for (const auto& file : files) {
    EXPECT_EQ(ReadTable(file.Text, false), file.Expected) << file.Text;
    EXPECT_EQ(ReadTable(file.Text, true), file.Expected) << file.Text << "\nwith a decimal comma";
  }
}

TEST(TableFile, TheLocaleDecidesWhereTheTextDoesNot) {
  const struct {
    std::string Text;
    Columns WithPoint;
    Columns WithComma;
  } files[] = {
      {"x;y\n1,234;2\n", {{"x", {1234}}, {"y", {2}}}, {{"x", {1.234}}, {"y", {2}}}},
      {"x,y\n\"1,234\",2\n", {{"x", {1234}}, {"y", {2}}}, {{"x", {1.234}}, {"y", {2}}}},
      {"1,5\n2,5\n", {{"", {1, 2}}, {"", {5, 5}}}, {{"", {1.5, 2.5}}}},
      {"1.234\n5.678\n", {{"", {1.234, 5.678}}}, {{"", {1234, 5678}}}},
  };
  for (const auto& file : files) {
    EXPECT_EQ(ReadTable(file.Text, false), file.WithPoint) << file.Text;
    EXPECT_EQ(ReadTable(file.Text, true), file.WithComma) << file.Text;
  }
}

TEST(Cells, TheNumbersOfAText) {
  const struct {
    const char* Text;
    Numbers Expected;
  } rows[] = {
      {"", {}},
      {"no number", {}},
      {"1 234,50", {1234.5}},
      {"Weight\r\n1,5\r\n\r\n2\r\n", {1.5, 2}},
      {"1\t2.5\t\t-3", {1, 2.5, -3}},
      {"1;2;;x;3", {1, 2, 3}},
      {"\"1,5\"\t\"2\n3\"\t\" 4 \"", {1.5, 4}},
      {"1,234\n2,5", {1.234, 2.5}},
      {"1,234\n2.5", {1234, 2.5}},
      {"12 %\n\xFF\n(5)\n0x10", {0.12, -5, 16}},
  };
  for (const auto& row : rows) {
    EXPECT_EQ(ReadForeignNumbers(row.Text, false), row.Expected) << row.Text;
    EXPECT_EQ(ReadForeignNumbers(row.Text, true), row.Expected) << row.Text;
  }
  EXPECT_EQ(ReadForeignNumbers("1,234\t5", false), (Numbers{1234, 5}));
  EXPECT_EQ(ReadForeignNumbers("1,234\t5", true), (Numbers{1.234, 5}));
}

TEST(TextEncoding, CharactersOfSeveralUnitsAndBrokenOnes) {
  EXPECT_EQ(ToUtf8(std::string("\xFE\xFF\xD8\x3D\xDE\x00", 6)), "\U0001F600");
  EXPECT_EQ(ToUtf8(std::string("\xFF\xFE\xAC\x20\x3D\xD8x\0y", 9)), "\u20AC\uFFFDx");
  EXPECT_EQ(ToUtf8("\xEF\xBB\xBF\u20AC"), "\u20AC");
  EXPECT_EQ(ToUtf8("\u20AC\xE9"), "\u00E2\u0082\u00AC\u00E9") << "one broken byte: not UTF-8";
}

std::string Repeated(std::string_view part, std::size_t size) {
  std::string text;
  while (text.size() < size) text += part;
  return text;
}

TEST(TableFile, LargeFilesAreReadQuickly) {
  constexpr std::size_t size = 1'000'000;
  const auto start = std::chrono::steady_clock::now();
  EXPECT_EQ(ReadTable(Repeated("12345;678;9012\n", size), true).at(2).Values.size(), 66'667U);
  EXPECT_EQ(ReadTable(Repeated("1.234,50 \u20AC\t12,5 %\n", size), false).at(1).Values.front(), 0.125);
  EXPECT_EQ(ReadTable(Repeated("1;", size), false).size(), 1000U) << "a line of very many cells";
  for (const std::string_view part : {"\"", "\"a;", "\";\"\"", " ", ",", "word ", "\n"})
    EXPECT_EQ(ReadTable(Repeated(part, size), false), Columns{}) << part;
  EXPECT_EQ(ReadForeignNumbers(Repeated("1 234,50\t", size), false).size(), 111'112U);
  EXPECT_LT(std::chrono::steady_clock::now() - start, std::chrono::seconds(20)) << "something is quadratic";
}

}  // namespace
}  // namespace qves
