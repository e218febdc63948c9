#include "platform/jet/Dates.h"

#include <array>
#include <charconv>
#include <chrono>
#include <cmath>
#include <cstddef>
#include <cstdio>

namespace velmar::jet {
namespace {

constexpr int kFirstYear = 100;
constexpr int kLastYear = 9999;
constexpr double kSecondsPerDay = 86400;

constexpr std::chrono::sys_days Epoch() {
  return std::chrono::year{1899} / 12 / 30;
}

double Compose(long long day, double fraction) {
  const auto whole = static_cast<double>(day);
  return day < 0 ? whole - fraction : whole + fraction;
}

std::optional<double> DayOf(int year, int month, int day) {
  if (year < kFirstYear || year > kLastYear || month < 1 || day < 1) return std::nullopt;
  const std::chrono::year_month_day date{std::chrono::year{year},
                                         std::chrono::month{static_cast<unsigned>(month)},
                                         std::chrono::day{static_cast<unsigned>(day)}};
  if (!date.ok()) return std::nullopt;
  return static_cast<double>((std::chrono::sys_days{date} - Epoch()).count());
}

// Reads the numbers of a date or time between separators of one kind.
class NumberReader {
 public:
  explicit NumberReader(std::string_view text) : text_(text) {}

  bool Read(int& value, std::size_t* digits = nullptr) {
    const char* end = text_.data() + text_.size();
    if (text_.empty() || text_.front() < '0' || text_.front() > '9') return false;
    const auto result = std::from_chars(text_.data(), end, value);
    if (result.ec != std::errc{}) return false;
    const auto length = static_cast<std::size_t>(result.ptr - text_.data());
    if (digits != nullptr) *digits = length;
    text_.remove_prefix(length);
    return true;
  }

  bool Skip(char separator) {
    if (text_.empty() || text_.front() != separator) return false;
    text_.remove_prefix(1);
    return true;
  }

  void SkipBlanks() {
    while (Skip(' ')) {
    }
  }

  char Peek() const { return text_.empty() ? '\0' : text_.front(); }
  bool AtEnd() const { return text_.empty(); }

 private:
  std::string_view text_;
};

int FullYear(int year, std::size_t digits) {
  if (digits > 2) return year;
  return year < 30 ? 2000 + year : 1900 + year;
}

bool ReadTime(NumberReader& reader, DateParts& parts) {
  if (!reader.Read(parts.hour) || !reader.Skip(':') || !reader.Read(parts.minute)) return false;
  if (reader.Skip(':') && !reader.Read(parts.second)) return false;
  reader.SkipBlanks();
  const char half = static_cast<char>(reader.Peek() | 0x20);
  if (half == 'a' || half == 'p') {
    reader.Skip(reader.Peek());
    if ((reader.Peek() | 0x20) != 'm' || parts.hour < 1 || parts.hour > 12) return false;
    reader.Skip(reader.Peek());
    parts.hour = parts.hour % 12 + (half == 'p' ? 12 : 0);
  }
  return reader.AtEnd();
}

}  // namespace

std::optional<double> DateOf(const DateParts& parts) {
  const auto day = DayOf(parts.year, parts.month, parts.day);
  if (!day || parts.hour < 0 || parts.hour > 23 || parts.minute < 0 || parts.minute > 59 ||
      parts.second < 0 || parts.second > 59) {
    return std::nullopt;
  }
  const int seconds = (parts.hour * 60 + parts.minute) * 60 + parts.second;
  return Compose(static_cast<long long>(*day), seconds / kSecondsPerDay);
}

std::optional<double> NormalisedDate(long long year, long long month, long long day) {
  constexpr long long kReasonable = 10'000'000;
  for (const long long part : {year, month, day}) {
    if (part < -kReasonable || part > kReasonable) return std::nullopt;
  }
  const long long months = year * 12 + month - 1;
  const long long wholeYear = months >= 0 ? months / 12 : (months - 11) / 12;
  if (wholeYear < 0 || wholeYear > kLastYear + 1) return std::nullopt;
  const std::chrono::year_month_day first{
      std::chrono::year{static_cast<int>(wholeYear)},
      std::chrono::month{static_cast<unsigned>(months - wholeYear * 12 + 1)}, std::chrono::day{1}};
  const auto date = static_cast<double>((std::chrono::sys_days{first} - Epoch()).count() + day - 1);
  if (!PartsOf(date)) return std::nullopt;
  return date;
}

std::optional<DateParts> PartsOf(double date) {
  constexpr double kBeyond = 3e6;
  if (!(std::fabs(date) < kBeyond)) return std::nullopt;
  double day = std::trunc(date);
  auto seconds = static_cast<int>(std::lround(std::fabs(date - day) * kSecondsPerDay));
  if (seconds == static_cast<int>(kSecondsPerDay)) {
    day += 1;
    seconds = 0;
  }
  const std::chrono::year_month_day civil{Epoch() + std::chrono::days{static_cast<int>(day)}};
  DateParts parts;
  parts.year = static_cast<int>(civil.year());
  if (parts.year < kFirstYear || parts.year > kLastYear) return std::nullopt;
  parts.month = static_cast<int>(static_cast<unsigned>(civil.month()));
  parts.day = static_cast<int>(static_cast<unsigned>(civil.day()));
  parts.hour = seconds / 3600;
  parts.minute = seconds / 60 % 60;
  parts.second = seconds % 60;
  return parts;
}

double AddSeconds(double date, double seconds) {
  const double day = std::trunc(date);
  const double moved = std::fabs(date - day) * kSecondsPerDay + seconds;
  const double days = std::floor(std::round(moved) / kSecondsPerDay);
  const double rest = std::round(moved) - days * kSecondsPerDay;
  return Compose(static_cast<long long>(day + days), rest / kSecondsPerDay);
}

std::optional<double> ParseDate(std::string_view text, DayOrder order) {
  while (!text.empty() && text.front() == ' ') text.remove_prefix(1);
  while (!text.empty() && text.back() == ' ') text.remove_suffix(1);
  DateParts parts;
  if (NumberReader time(text); ReadTime(time, parts)) return DateOf(parts);

  parts = DateParts{};
  NumberReader reader(text);
  std::array<int, 3> numbers{};
  std::array<std::size_t, 3> digits{};
  if (!reader.Read(numbers[0], &digits[0])) return std::nullopt;
  const char separator = reader.Peek();
  if (separator != '/' && separator != '-' && separator != '.') return std::nullopt;
  for (std::size_t i = 1; i < numbers.size(); ++i) {
    if (!reader.Skip(separator) || !reader.Read(numbers[i], &digits[i])) return std::nullopt;
  }
  if (!reader.AtEnd()) {
    if (!reader.Skip('T') && reader.Peek() != ' ') return std::nullopt;
    reader.SkipBlanks();
    if (!ReadTime(reader, parts)) return std::nullopt;
  }
  if (digits[0] > 2) {
    parts.year = numbers[0];
    parts.month = numbers[1];
    parts.day = numbers[2];
    return DateOf(parts);
  }
  parts.year = FullYear(numbers[2], digits[2]);
  parts.day = order == DayOrder::kDayFirst ? numbers[0] : numbers[1];
  parts.month = order == DayOrder::kDayFirst ? numbers[1] : numbers[0];
  if (parts.month > 12) std::swap(parts.day, parts.month);
  return DateOf(parts);
}

std::string DateText(double date) {
  const auto parts = PartsOf(date);
  if (!parts) return {};
  std::array<char, 64> buffer{};
  std::string text;
  const bool hasTime = parts->hour != 0 || parts->minute != 0 || parts->second != 0;
  const bool hasDay = std::trunc(date) != 0 || !hasTime;
  if (hasDay) {
    const int length =
        std::snprintf(buffer.data(), buffer.size(), "%02d/%02d/%04d", parts->day, parts->month, parts->year);
    text.append(buffer.data(), static_cast<std::size_t>(length));
  }
  if (hasTime) {
    if (hasDay) text += ' ';
    const int length = std::snprintf(buffer.data(), buffer.size(), "%d:%02d:%02d", parts->hour, parts->minute,
                                     parts->second);
    text.append(buffer.data(), static_cast<std::size_t>(length));
  }
  return text;
}

int DayOfWeek(double date) {
  const auto day = Epoch() + std::chrono::days{static_cast<int>(std::trunc(date))};
  return static_cast<int>(std::chrono::weekday{day}.c_encoding()) + 1;
}

}  // namespace velmar::jet
