#pragma once

#include <chrono>
#include <optional>
#include <string>
#include <string_view>

namespace velmar::sample {

using CalendarDate = std::chrono::year_month_day;

/// Today by the machine's local calendar.
CalendarDate Today();

/// A date written year-month-day (ISO 8601, "2025-03-31"); nothing for any other text and for dates that the
/// calendar does not have.
std::optional<CalendarDate> ParseDate(std::string_view text);

/// The form in which the office's tables keep a date: eight digits, year, month, day.
std::string StoredDate(const CalendarDate& date);

/// The date that lies so many days later, or earlier for a negative number.
CalendarDate AddDays(const CalendarDate& date, int days);

}  // namespace velmar::sample
