#include "sample/CalendarDate.h"

#include <algorithm>
#include <ctime>

namespace velmar::sample {
namespace {

CalendarDate MakeDate(int year, unsigned month, unsigned day) {
  return {std::chrono::year(year), std::chrono::month(month), std::chrono::day(day)};
}

int ToNumber(std::string_view digits) {
  int number = 0;
  for (char digit : digits) number = number * 10 + (digit - '0');
  return number;
}

}  // namespace

CalendarDate Today() {
  const std::time_t now = std::time(nullptr);
  std::tm local{};
  localtime_r(&now, &local);
  return MakeDate(local.tm_year + 1900, static_cast<unsigned>(local.tm_mon + 1),
                  static_cast<unsigned>(local.tm_mday));
}

std::optional<CalendarDate> ParseDate(std::string_view text) {
  if (text.size() != 10 || text[4] != '-' || text[7] != '-') return std::nullopt;
  const auto isDigit = [](char c) { return c >= '0' && c <= '9'; };
  const std::string_view year = text.substr(0, 4), month = text.substr(5, 2), day = text.substr(8, 2);
  for (const std::string_view part : {year, month, day}) {
    if (!std::all_of(part.begin(), part.end(), isDigit)) return std::nullopt;
  }
  const CalendarDate date =
      MakeDate(ToNumber(year), static_cast<unsigned>(ToNumber(month)), static_cast<unsigned>(ToNumber(day)));
  return date.ok() ? std::optional(date) : std::nullopt;
}

std::string StoredDate(const CalendarDate& date) {
  int value = static_cast<int>(date.year()) * 10000 +
              static_cast<int>(static_cast<unsigned>(date.month())) * 100 +
              static_cast<int>(static_cast<unsigned>(date.day()));
  std::string text(8, '0');
  for (std::size_t i = 8; i-- > 0; value /= 10) text[i] = static_cast<char>('0' + value % 10);
  return text;
}

CalendarDate AddDays(const CalendarDate& date, int days) {
  return std::chrono::sys_days(date) + std::chrono::days(days);
}

}  // namespace velmar::sample
