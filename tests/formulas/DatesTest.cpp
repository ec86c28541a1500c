// Dates against references: computed with the spreadsheet Gnumeric 1.12.55 (differences of DATE, EDATE, and
// TEXT with "m.ddyyyy" and "dddd, mmm d yyyy"), before its first year 1900 with Python 3.11's datetime; both
// agree from 1900 on.
#include <gtest/gtest.h>

#include "formulas/Dates.h"

namespace qves {
namespace {

const DateNames English = {
    {"Sunday", "Monday", "Tuesday", "Wednesday", "Thursday", "Friday", "Saturday"},
    {"Jan", "Feb", "Mar", "Apr", "May", "Jun", "Jul", "Aug", "Sep", "Oct", "Nov", "Dec"}};

std::string Name(const Date& date) {
  return FormatLongDate(ToDayNumber(date), English);
}

TEST(DateValues, DaysBetween) {
  const struct {
    Date From;
    Date To;
    int Days;
  } rows[] = {
      {{1899, 12, 30}, {1900, 3, 1}, 61},      {{1899, 12, 30}, {2004, 4, 7}, 38084},
      {{1899, 12, 30}, {2100, 3, 1}, 73110},   {{1899, 12, 30}, {9999, 12, 31}, 2958465},
      {{2004, 4, 7}, {2004, 12, 27}, 264},     {{2004, 12, 27}, {2004, 4, 7}, -264},
      {{2003, 2, 28}, {2003, 3, 1}, 1},        {{2100, 2, 28}, {2100, 3, 1}, 1},
      {{2000, 2, 28}, {2000, 3, 1}, 2},        {{2001, 1, 1}, {2101, 1, 1}, 36524},
      {{2000, 1, 1}, {2400, 1, 1}, 146097},    {{2024, 5, 31}, {2024, 5, 31}, 0},
      {{100, 1, 1}, {9999, 12, 31}, 3615899},  {{100, 1, 1}, {1899, 12, 30}, 657434},
      {{400, 2, 28}, {400, 3, 1}, 2},          {{500, 2, 28}, {500, 3, 1}, 1},
      {{1600, 2, 29}, {1899, 12, 30}, 109512}, {{1582, 10, 4}, {1582, 10, 15}, 11},
  };
  for (const auto& [from, to, days] : rows) {
    EXPECT_EQ(ToDayNumber(to) - ToDayNumber(from), days) << Name(from) << " to " << Name(to);
    EXPECT_EQ(Name(FromDayNumber(AddDays(ToDayNumber(from), days))), Name(to)) << Name(from);
  }
  EXPECT_EQ(ToDayNumber({1899, 12, 30}), 0);
}

TEST(DateValues, AFractionOfADayIsRoundedHalvesToEven) {
  const struct {
    double Days;
    DayNumber Expected;
  } rows[] = {{0.5, 40000},   {0.51, 40001}, {1.5, 40002},  {2.5, 40002},
              {2.499, 40002}, {-0.5, 40000}, {-1.5, 39998}, {-0.51, 39999}};
  for (const auto& [days, expected] : rows) EXPECT_EQ(AddDays(40000, days), expected) << days;
}

TEST(DateValues, MonthsLater) {
  const struct {
    Date From;
    int Months;
    Date To;
  } rows[] = {
      {{2024, 1, 31}, 1, {2024, 2, 29}},    {{2023, 1, 31}, 1, {2023, 2, 28}},
      {{2024, 3, 31}, -1, {2024, 2, 29}},   {{2023, 3, 31}, -1, {2023, 2, 28}},
      {{2024, 1, 31}, 6, {2024, 7, 31}},    {{2024, 8, 31}, -6, {2024, 2, 29}},
      {{2024, 8, 31}, 6, {2025, 2, 28}},    {{2024, 8, 29}, -6, {2024, 2, 29}},
      {{2023, 8, 29}, -6, {2023, 2, 28}},   {{2024, 2, 29}, 12, {2025, 2, 28}},
      {{2024, 2, 29}, 48, {2028, 2, 29}},   {{2024, 2, 29}, -12, {2023, 2, 28}},
      {{2100, 1, 31}, 1, {2100, 2, 28}},    {{2000, 1, 31}, 1, {2000, 2, 29}},
      {{2024, 12, 31}, 2, {2025, 2, 28}},   {{2024, 12, 15}, 1, {2025, 1, 15}},
      {{2024, 1, 15}, -1, {2023, 12, 15}},  {{2024, 5, 31}, 0, {2024, 5, 31}},
      {{2024, 5, 31}, -600, {1974, 5, 31}}, {{2024, 10, 31}, 1195, {2124, 5, 31}},
      {{2024, 11, 30}, 3, {2025, 2, 28}},   {{2024, 2, 28}, 6, {2024, 8, 28}},
  };
  for (const auto& [from, months, to] : rows)
    EXPECT_EQ(Name(FromDayNumber(AddMonths(ToDayNumber(from), months))), Name(to)) << Name(from);
}

TEST(DateValues, Texts) {
  const struct {
    Date Day;
    const char* Number;
    const char* Text;
  } rows[] = {
      {{2004, 4, 7}, "4.072004", "Wednesday, Apr 7 2004"},
      {{2000, 1, 1}, "1.012000", "Saturday, Jan 1 2000"},
      {{2024, 2, 29}, "2.292024", "Thursday, Feb 29 2024"},
      {{2026, 11, 21}, "11.212026", "Saturday, Nov 21 2026"},
      {{1969, 7, 20}, "7.201969", "Sunday, Jul 20 1969"},
      {{1945, 5, 8}, "5.081945", "Tuesday, May 8 1945"},
      {{1900, 3, 1}, "3.011900", "Thursday, Mar 1 1900"},
      {{2020, 10, 10}, "10.102020", "Saturday, Oct 10 2020"},
      {{2100, 3, 1}, "3.012100", "Monday, Mar 1 2100"},
      {{2399, 6, 30}, "6.302399", "Wednesday, Jun 30 2399"},
      {{2400, 2, 29}, "2.292400", "Tuesday, Feb 29 2400"},
      {{9999, 12, 31}, "12.319999", "Friday, Dec 31 9999"},
      {{2023, 8, 6}, "8.062023", "Sunday, Aug 6 2023"},
      {{2021, 9, 17}, "9.172021", "Friday, Sep 17 2021"},
      {{1600, 2, 29}, "2.291600", "Tuesday, Feb 29 1600"},
      {{1789, 7, 14}, "7.141789", "Tuesday, Jul 14 1789"},
      {{100, 1, 1}, "1.010100", "Friday, Jan 1 0100"},
  };
  for (const auto& [date, number, text] : rows) {
    const DayNumber day = ToDayNumber(date);
    EXPECT_EQ(FormatDateNumber(day), number);
    EXPECT_EQ(FormatLongDate(day, English), text);
    EXPECT_EQ(ParseDateNumber(number, English), day) << number;
    EXPECT_EQ(ParseDateNumber(text, English), day) << text;
  }
}

}  // namespace
}  // namespace qves
