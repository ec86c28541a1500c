#include "formulas/Dates.h"

#include <algorithm>
#include <chrono>
#include <cmath>
#include <optional>

#include "formulas/Numbers.h"
#include "model/ArithmeticFault.h"
#include "text/Integers.h"

namespace qves {
namespace {

namespace calendar = std::chrono;

constexpr calendar::sys_days DayZero = calendar::year(1899) / 12 / 30;
constexpr int FirstYear = 100;
constexpr int LastYear = 9999;
constexpr std::size_t YearDigits = 4;
constexpr std::size_t DayDigits = 2;

calendar::sys_days ToCalendar(DayNumber day) {
  return DayZero + calendar::days(day);
}

DayNumber Number(calendar::year_month_day date) {
  const int year = static_cast<int>(date.year());
  if (!date.ok() || year < FirstYear || year > LastYear)
    throw ArithmeticFault(FaultReason::NoSuchDate, "no such date");
  return static_cast<DayNumber>((calendar::sys_days(date) - DayZero).count());
}

std::string TwoDigits(unsigned number) {
  return (number < 10 ? "0" : "") + std::to_string(number);
}

std::string FourDigits(int number) {
  const std::string digits = std::to_string(number);
  return std::string(YearDigits - digits.size(), '0') + digits;
}

struct DateParts {
  std::string_view Month, Day, Year;
};

/// Splits m.ddyyyy.
std::optional<DateParts> SplitNumber(std::string_view text) {
  const std::size_t point = text.find('.');
  if (point == std::string_view::npos || point < 1 || point > 2) return std::nullopt;
  const std::string_view rest = text.substr(point + 1);
  if (rest.size() != DayDigits + YearDigits) return std::nullopt;
  return DateParts{text.substr(0, point), rest.substr(0, DayDigits), rest.substr(DayDigits)};
}

std::optional<unsigned> MonthByName(std::string_view name, const DateNames& names) {
  const auto found = std::find(names.Months.begin(), names.Months.end(), name);
  if (found == names.Months.end()) return std::nullopt;
  return static_cast<unsigned>(found - names.Months.begin()) + 1;
}

/// The day of a text with the weekday's and the month's name. The weekday is not looked at.
std::optional<DayNumber> ParseLongDate(std::string_view text, const DateNames& names) {
  const std::size_t comma = text.find(", ");
  if (comma == std::string_view::npos) return std::nullopt;
  const std::string_view rest = text.substr(comma + 2);
  const std::size_t afterMonth = rest.find(' ');
  const std::size_t afterDay = rest.rfind(' ');
  if (afterMonth == afterDay) return std::nullopt;
  const auto month = MonthByName(rest.substr(0, afterMonth), names);
  const auto day = ParseInteger<unsigned>(rest.substr(afterMonth + 1, afterDay - afterMonth - 1));
  const auto year = ParseInteger<unsigned>(rest.substr(afterDay + 1));
  if (!month || !day || !year) return std::nullopt;
  return ToDayNumber({static_cast<int>(*year), static_cast<int>(*month), static_cast<int>(*day)});
}

}  // namespace

DayNumber ToDayNumber(const Date& date) {
  return Number(calendar::year(date.Year) / date.Month / date.Day);
}

Date FromDayNumber(DayNumber day) {
  const calendar::year_month_day date = ToCalendar(day);
  return {static_cast<int>(date.year()), static_cast<int>(static_cast<unsigned>(date.month())),
          static_cast<int>(static_cast<unsigned>(date.day()))};
}

DayNumber AddDays(DayNumber day, double days) {
  const double count = ToInt32(days, FaultReason::NoSuchDate);
  return Number(calendar::year_month_day(ToCalendar(ToInt32(day + count, FaultReason::NoSuchDate))));
}

DayNumber AddMonths(DayNumber day, int months) {
  const calendar::year_month_day date = ToCalendar(day);
  const calendar::year_month_day moved = date + calendar::months(months);
  if (moved.ok()) return Number(moved);
  return Number(calendar::year_month_day(moved.year() / moved.month() / calendar::last));
}

std::string FormatDateNumber(DayNumber day) {
  const Date date = FromDayNumber(day);
  return std::to_string(date.Month) + "." + TwoDigits(static_cast<unsigned>(date.Day)) +
         FourDigits(date.Year);
}

DayNumber ParseDateNumber(std::string_view text, const DateNames& names) {
  if (const auto parts = SplitNumber(text)) {
    const auto month = ParseInteger<unsigned>(parts->Month);
    const auto day = ParseInteger<unsigned>(parts->Day);
    const auto year = ParseInteger<unsigned>(parts->Year);
    if (month && day && year)
      return ToDayNumber({static_cast<int>(*year), static_cast<int>(*month), static_cast<int>(*day)});
  }
  if (const auto day = ParseLongDate(text, names)) return *day;
  throw ArithmeticFault(FaultReason::NoSuchDate, "the text is no date");
}

std::string FormatLongDate(DayNumber day, const DateNames& names) {
  const Date date = FromDayNumber(day);
  const unsigned weekday = calendar::weekday(ToCalendar(day)).c_encoding();
  return names.Weekdays[weekday] + ", " + names.Months[static_cast<std::size_t>(date.Month - 1)] + " " +
         std::to_string(date.Day) + " " + FourDigits(date.Year);
}

}  // namespace qves
