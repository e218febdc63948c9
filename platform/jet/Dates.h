#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace velmar::jet {

// A date is a double: whole days since 30 December 1899, the time of day as the fraction. Before that day the
// fraction still counts forward from midnight: -1.25 is 29 December 1899, 6:00. Years run from 100 to 9999.

/// A date taken apart, in the proleptic Gregorian calendar.
struct DateParts {
  int year = 1899;
  int month = 12;
  int day = 30;
  int hour = 0;
  int minute = 0;
  int second = 0;
};

enum class DayOrder { kDayFirst, kMonthFirst };

/// The date of a day and a time, nothing if there is no such day, time or year.
std::optional<double> DateOf(const DateParts& parts);

/// The date of a year, month and day of which month and day may run over or be below 1 (month 13 is January
/// of the next year). Nothing beyond the years 100 to 9999.
std::optional<double> NormalisedDate(long long year, long long month, long long day);

/// The date taken apart, rounded to the second. Nothing beyond the years 100 to 9999.
std::optional<DateParts> PartsOf(double date);

/// The date with the time of day moved by a number of seconds.
double AddSeconds(double date, double seconds);

/// Reads a date as people write it: day, month and year between "/", "-" or "." (in the other order if the
/// given one makes no sense), year, month and day (ISO 8601), and a time "h:m[:s]" behind a blank or a T or
/// on its own. Years of two digits fall into 1930 to 2029.
std::optional<double> ParseDate(std::string_view text, DayOrder order);

/// "dd/mm/yyyy", "h:mm:ss" or both: what the date holds.
std::string DateText(double date);

/// 1 (Sunday) to 7 (Saturday).
int DayOfWeek(double date);

}  // namespace velmar::jet
