// Calendar dates: as day numbers, as the number m.ddyyyy that is typed and shown, and as a text with the
// weekday.
#pragma once

#include <array>
#include <cstdint>
#include <string>
#include <string_view>

#include "platform/Outside.h"

namespace qves {

/// A day by its number; 0 is 30 December 1899.
using DayNumber = std::int32_t;

/// The number of a date of the Gregorian calendar. Faults for a date that is none and outside the years 100
/// to 9999.
DayNumber ToDayNumber(const Date& date);
Date FromDayNumber(DayNumber day);

/// The day that many days later, the count rounded, halves to even. Faults outside the years 100 to 9999.
DayNumber AddDays(DayNumber day, double days);
/// The same day of the month so many months earlier or later, or the month's last one.
DayNumber AddMonths(DayNumber day, int months);

/// The names that a date is written with.
struct DateNames {
  std::array<std::string, 7> Weekdays;  ///< from Sunday
  std::array<std::string, 12> Months;   ///< abbreviated
};

/// "4.072004" for 7 April 2004: always six digits behind the point.
std::string FormatDateNumber(DayNumber day);
/// The day of a text as FormatDateNumber writes it, also with a leading zero, or as FormatLongDate does.
/// Faults when it is no date.
DayNumber ParseDateNumber(std::string_view text, const DateNames& names);

/// "Monday, Dec 27 2004".
std::string FormatLongDate(DayNumber day, const DateNames& names);

}  // namespace qves
