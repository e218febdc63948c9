#include "platform/jet/DateFunctions.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <ctime>
#include <string>
#include <string_view>

#include "platform/error/ErrorNumber.h"
#include "platform/error/RuntimeError.h"
#include "platform/jet/Dates.h"
#include "platform/jet/FormatPattern.h"
#include "platform/text/Case.h"
#include "platform/text/Characters.h"

namespace velmar::jet {
namespace {

enum class Interval { kYear, kQuarter, kMonth, kDayOfYear, kDay, kWeekday, kWeek, kHour, kMinute, kSecond };

struct IntervalName {
  std::string_view name;
  Interval interval;
};

constexpr auto kIntervals = std::to_array<IntervalName>({{"yyyy", Interval::kYear},
                                                         {"q", Interval::kQuarter},
                                                         {"m", Interval::kMonth},
                                                         {"y", Interval::kDayOfYear},
                                                         {"d", Interval::kDay},
                                                         {"w", Interval::kWeekday},
                                                         {"ww", Interval::kWeek},
                                                         {"h", Interval::kHour},
                                                         {"n", Interval::kMinute},
                                                         {"s", Interval::kSecond}});

[[noreturn]] void FailArgument(const std::string& what) {
  throw RuntimeError(kInvalidProcedureCall, "Argumento no válido: " + what + ".", "Jet SQL");
}

Interval IntervalOf(const Arguments& arguments) {
  std::string scratch;
  const std::string name = text::LCase(arguments.Text(0, scratch));
  const auto* found = std::find_if(kIntervals.begin(), kIntervals.end(),
                                   [&name](const IntervalName& candidate) { return candidate.name == name; });
  if (found == kIntervals.end())
    FailArgument("«" + name + "» no es un intervalo (yyyy, q, m, y, d, w, ww, h, n, s)");
  return found->interval;
}

DateParts Parts(const Arguments& arguments, int index) {
  return *PartsOf(arguments.Date(index));
}

void ReturnDate(Arguments& arguments, std::optional<double> date) {
  if (!date || !PartsOf(*date)) FailArgument("la fecha queda fuera de los años 100 a 9999");
  arguments.Return(*date);
}

template <int DateParts::*Part>
void PartOfDate(Arguments& arguments) {
  arguments.Return(Parts(arguments, 0).*Part);
}

// 1 to 7 for weeks that begin on the given day (1 is Sunday, which is usual).
int Weekday(double date, std::int64_t firstDay) {
  if (firstDay < 1 || firstDay > 7) FailArgument("el primer día de la semana va de 1 (domingo) a 7");
  return static_cast<int>((DayOfWeek(date) - firstDay + 7) % 7 + 1);
}

void WeekdayOf(Arguments& arguments) {
  arguments.Return(Weekday(arguments.Date(0), arguments.Count() == 2 ? arguments.Integer(1) : 1));
}

void MonthName(Arguments& arguments) {
  const std::int64_t month = arguments.Integer(0);
  if (month < 1 || month > 12) FailArgument("el mes va de 1 a 12");
  const bool abbreviated = arguments.Count() == 2 && arguments.Integer(1) != 0;
  const std::string_view name = SpanishMonth(static_cast<int>(month));
  arguments.Return(abbreviated ? text::Left(name, 3) : std::string(name));
}

void DateSerial(Arguments& arguments) {
  std::int64_t year = arguments.Integer(0);
  if (year >= 0 && year < 30) year += 2000;
  if (year >= 30 && year < 100) year += 1900;
  ReturnDate(arguments, NormalisedDate(year, arguments.Integer(1), arguments.Integer(2)));
}

void TimeSerial(Arguments& arguments) {
  const auto part = [&arguments](int index) { return static_cast<double>(arguments.Integer(index)); };
  ReturnDate(arguments, AddSeconds(0, (part(0) * 60 + part(1)) * 60 + part(2)));
}

// Months run over into years; a day that the month lacks becomes its last.
std::optional<double> AddMonths(double date, std::int64_t months) {
  const DateParts parts = *PartsOf(date);
  const auto first = NormalisedDate(parts.year, parts.month + months, 1);
  const auto next = NormalisedDate(parts.year, parts.month + months + 1, 1);
  if (!first || !next) return std::nullopt;
  const double day = std::min(*first + parts.day - 1, *next - 1);
  const double time = std::fabs(date - std::trunc(date));
  return day < 0 ? day - time : day + time;
}

void DateAdd(Arguments& arguments) {
  constexpr double kMost = 1e11;
  const std::int64_t count = arguments.Whole(1, -kMost, kMost);
  const auto number = static_cast<double>(count);
  const double date = arguments.Date(2);
  std::optional<double> result;
  switch (IntervalOf(arguments)) {
    case Interval::kYear:
      result = AddMonths(date, count * 12);
      break;
    case Interval::kQuarter:
      result = AddMonths(date, count * 3);
      break;
    case Interval::kMonth:
      result = AddMonths(date, count);
      break;
    case Interval::kDayOfYear:
    case Interval::kDay:
    case Interval::kWeekday:
      result = AddSeconds(date, number * 86400);
      break;
    case Interval::kWeek:
      result = AddSeconds(date, number * 7 * 86400);
      break;
    case Interval::kHour:
      result = AddSeconds(date, number * 3600);
      break;
    case Interval::kMinute:
      result = AddSeconds(date, number * 60);
      break;
    case Interval::kSecond:
      result = AddSeconds(date, number);
      break;
  }
  ReturnDate(arguments, result);
}

// Days since the epoch as a whole number, and seconds since the epoch.
std::int64_t Days(double date) {
  return static_cast<std::int64_t>(std::trunc(date));
}

std::int64_t Seconds(double date) {
  const DateParts parts = *PartsOf(date);
  return Days(*DateOf({parts.year, parts.month, parts.day, 0, 0, 0})) * 86400 +
         (std::int64_t{parts.hour} * 60 + parts.minute) * 60 + parts.second;
}

std::int64_t FloorDivide(std::int64_t number, std::int64_t divisor) {
  return number >= 0 ? number / divisor : (number - divisor + 1) / divisor;
}

// Boundaries between the two dates: from 31 December to 1 January is one year.
void DateDiff(Arguments& arguments) {
  const double from = arguments.Date(1);
  const double to = arguments.Date(2);
  const DateParts a = *PartsOf(from);
  const DateParts b = *PartsOf(to);
  const auto months = [](const DateParts& parts) { return parts.year * 12 + parts.month - 1; };
  switch (IntervalOf(arguments)) {
    case Interval::kYear:
      arguments.Return(b.year - a.year);
      return;
    case Interval::kQuarter:
      arguments.Return(months(b) / 3 - months(a) / 3);
      return;
    case Interval::kMonth:
      arguments.Return(months(b) - months(a));
      return;
    case Interval::kDayOfYear:
    case Interval::kDay:
      arguments.Return(Days(to) - Days(from));
      return;
    case Interval::kWeekday:
      arguments.Return((Days(to) - Days(from)) / 7);
      return;
    case Interval::kWeek: {
      const std::int64_t firstDay = arguments.Count() == 4 ? arguments.Integer(3) : 1;
      const auto weekStart = [firstDay](double date) { return Days(date) - Weekday(date, firstDay) + 1; };
      arguments.Return((weekStart(to) - weekStart(from)) / 7);
      return;
    }
    case Interval::kHour:
      arguments.Return(FloorDivide(Seconds(to), 3600) - FloorDivide(Seconds(from), 3600));
      return;
    case Interval::kMinute:
      arguments.Return(FloorDivide(Seconds(to), 60) - FloorDivide(Seconds(from), 60));
      return;
    case Interval::kSecond:
      arguments.Return(Seconds(to) - Seconds(from));
      return;
  }
}

void DatePart(Arguments& arguments) {
  const double date = arguments.Date(1);
  const DateParts parts = Parts(arguments, 1);
  const double newYear = *NormalisedDate(parts.year, 1, 1);
  const std::int64_t firstDay = arguments.Count() == 3 ? arguments.Integer(2) : 1;
  switch (IntervalOf(arguments)) {
    case Interval::kYear:
      arguments.Return(parts.year);
      return;
    case Interval::kQuarter:
      arguments.Return((parts.month + 2) / 3);
      return;
    case Interval::kMonth:
      arguments.Return(parts.month);
      return;
    case Interval::kDayOfYear:
      arguments.Return(Days(date) - Days(newYear) + 1);
      return;
    case Interval::kDay:
      arguments.Return(parts.day);
      return;
    case Interval::kWeekday:
      arguments.Return(Weekday(date, firstDay));
      return;
    case Interval::kWeek:
      // The week of 1 January is the first.
      arguments.Return((Days(date) - Days(newYear) + Weekday(newYear, firstDay) - 1) / 7 + 1);
      return;
    case Interval::kHour:
      arguments.Return(parts.hour);
      return;
    case Interval::kMinute:
      arguments.Return(parts.minute);
      return;
    case Interval::kSecond:
      arguments.Return(parts.second);
      return;
  }
}

double CurrentTime() {
  const std::time_t now = std::time(nullptr);
  std::tm local{};
  localtime_r(&now, &local);
  // A leap second counts as the one before.
  return *DateOf({local.tm_year + 1900, local.tm_mon + 1, local.tm_mday, local.tm_hour, local.tm_min,
                  std::min(local.tm_sec, 59)});
}

void Date(Arguments& arguments) {
  arguments.Return(std::trunc(CurrentTime()));
}

void Time(Arguments& arguments) {
  const double now = CurrentTime();
  arguments.Return(now - std::trunc(now));
}

void Now(Arguments& arguments) {
  arguments.Return(CurrentTime());
}

void CDate(Arguments& arguments) {
  arguments.Return(arguments.Date(0));
}

void DateValue(Arguments& arguments) {
  arguments.Return(std::trunc(arguments.Date(0)));
}

void DateAsText(Arguments& arguments) {
  arguments.Return(DateText(arguments.Date(0)));
}

void IsDate(Arguments& arguments) {
  std::string scratch;
  arguments.ReturnBoolean(arguments.IsText(0) &&
                          ParseDate(arguments.Text(0, scratch), DayOrder::kDayFirst).has_value());
}

constexpr auto kFunctions = std::to_array<EngineFunction>({
    {"jet_year", 1, Callback<PartOfDate<&DateParts::year>>},
    {"jet_month", 1, Callback<PartOfDate<&DateParts::month>>},
    {"jet_day", 1, Callback<PartOfDate<&DateParts::day>>},
    {"jet_hour", 1, Callback<PartOfDate<&DateParts::hour>>},
    {"jet_minute", 1, Callback<PartOfDate<&DateParts::minute>>},
    {"jet_second", 1, Callback<PartOfDate<&DateParts::second>>},
    {"jet_weekday", -1, Callback<WeekdayOf>},
    {"jet_monthname", -1, Callback<MonthName>},
    {"jet_dateserial", 3, Callback<DateSerial>},
    {"jet_timeserial", 3, Callback<TimeSerial>},
    {"jet_dateadd", 3, Callback<DateAdd>},
    {"jet_datediff", -1, Callback<DateDiff>},
    {"jet_datepart", -1, Callback<DatePart>},
    {"jet_date", 0, Callback<Date>, false},
    {"jet_time", 0, Callback<Time>, false},
    {"jet_now", 0, Callback<Now>, false},
    {"jet_cdate", 1, Callback<CDate>},
    {"jet_datevalue", 1, Callback<DateValue>},
    {"jet_datetext", 1, Callback<DateAsText>},
    {"jet_isdate", 1, Callback<IsDate, NullRule::kIsTaken>},
});

}  // namespace

std::span<const EngineFunction> DateFunctions() {
  return kFunctions;
}

}  // namespace velmar::jet
