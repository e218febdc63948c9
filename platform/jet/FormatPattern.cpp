#include "platform/jet/FormatPattern.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstddef>
#include <cstdio>

#include "platform/error/ErrorNumber.h"
#include "platform/error/RuntimeError.h"
#include "platform/jet/Dates.h"
#include "platform/jet/Keywords.h"
#include "platform/text/Case.h"
#include "platform/text/Characters.h"
#include "platform/text/CodePoints.h"
#include "platform/text/Numbers.h"

namespace velmar::jet {
namespace {

constexpr std::array<std::string_view, 12> kMonths{"enero",      "febrero", "marzo",     "abril",
                                                   "mayo",       "junio",   "julio",     "agosto",
                                                   "septiembre", "octubre", "noviembre", "diciembre"};
constexpr std::array<std::string_view, 7> kDays{"domingo", "lunes",   "martes", "miércoles",
                                                "jueves",  "viernes", "sábado"};

struct NamedPattern {
  std::string_view name;
  std::string_view pattern;
};

constexpr auto kNamed = std::to_array<NamedPattern>({
    {"General Number", ""},
    {"Currency", "#,##0.00 €;-#,##0.00 €"},
    {"Fixed", "0.00"},
    {"Standard", "#,##0.00"},
    {"Percent", "0.00%"},
    {"Yes/No", "\"Sí\";\"Sí\";\"No\""},
    {"True/False", "\"Verdadero\";\"Verdadero\";\"Falso\""},
    {"General Date", "dd/mm/yyyy h:nn:ss"},
    {"Long Date", "dddd, d \"de\" mmmm \"de\" yyyy"},
    {"Medium Date", "dd-mmm-yy"},
    {"Short Date", "dd/mm/yyyy"},
    {"Long Time", "h:nn:ss"},
    {"Medium Time", "hh:nn AM/PM"},
    {"Short Time", "hh:nn"},
});

bool IsDateLetter(char c) {
  return std::string_view("dmyhnsqw").find(c) != std::string_view::npos;
}

std::string Digits(int number, int width) {
  std::array<char, 16> buffer{};
  std::snprintf(buffer.data(), buffer.size(), "%0*d", width, number);
  return buffer.data();
}

// What one sign of a date's pattern shows. `hour` is on a clock of 12 where the pattern holds AM/PM.
std::string DatePiece(const std::string& sign, const DateParts& parts, double date, int hour, bool minutes) {
  const auto width = static_cast<int>(sign.size());
  switch (sign[0]) {
    case 'd':
      if (width > 2) {
        const std::string_view name = kDays.at(static_cast<std::size_t>(DayOfWeek(date) - 1));
        return width == 3 ? text::Left(name, 3) : std::string(name);
      }
      return Digits(parts.day, width);
    case 'm':
      if (minutes && width <= 2) return Digits(parts.minute, width);
      if (width > 2)
        return width == 3 ? text::Left(SpanishMonth(parts.month), 3) : std::string(SpanishMonth(parts.month));
      return Digits(parts.month, width);
    case 'y':
      if (width == 1) return std::to_string(static_cast<int>(date - *NormalisedDate(parts.year, 1, 1)) + 1);
      return width == 2 ? Digits(parts.year % 100, 2) : Digits(parts.year, 4);
    case 'q':
      return std::to_string((parts.month + 2) / 3);
    case 'w': {
      if (width == 1) return std::to_string(DayOfWeek(date));
      const double newYear = *NormalisedDate(parts.year, 1, 1);
      return std::to_string((static_cast<int>(date - newYear) + DayOfWeek(newYear) - 1) / 7 + 1);
    }
    case 'h':
      return Digits(hour, width);
    case 'n':
      return Digits(parts.minute, width);
    default:
      return Digits(parts.second, width);
  }
}

}  // namespace

std::string_view SpanishMonth(int month) {
  return kMonths.at(static_cast<std::size_t>(month - 1));
}

FormatPattern::FormatPattern(std::string_view pattern) {
  const auto* named = std::find_if(kNamed.begin(), kNamed.end(), [pattern](const NamedPattern& candidate) {
    return EqualWord(candidate.name, pattern);
  });
  if (named != kNamed.end()) pattern = named->pattern;
  isGeneral_ = pattern.empty();
  sections_ = Split(pattern);
  bool digits = false;
  for (const PatternPiece& piece : sections_[0]) {
    if (piece.literal) continue;
    isDate_ = isDate_ || IsDateLetter(piece.text[0]);
    isText_ = isText_ || std::string_view("@&<>").find(piece.text[0]) != std::string_view::npos;
    digits = digits || piece.IsDigitPlace();
  }
  isDate_ = isDate_ && !digits;
  isText_ = isText_ && !digits && !isDate_;
}

std::vector<PatternSection> FormatPattern::Split(std::string_view pattern) {
  std::vector<PatternSection> sections(1);
  const auto add = [&sections](std::string_view text, bool literal) {
    sections.back().push_back({std::string(text), literal});
  };
  for (std::size_t at = 0; at < pattern.size();) {
    const char c = pattern[at];
    const char low = static_cast<char>(c >= 'A' && c <= 'Z' ? c + ('a' - 'A') : c);
    if (c == '"') {
      const std::size_t close = std::min(pattern.find('"', at + 1), pattern.size());
      add(pattern.substr(at + 1, close - at - 1), true);
      at = close + 1;
    } else if (c == '\\' && at + 1 < pattern.size()) {
      const std::size_t start = ++at;
      text::NextCodePoint(pattern, at);
      add(pattern.substr(start, at - start), true);
    } else if (c == ';') {
      sections.emplace_back();
      ++at;
    } else if (EqualWord(pattern.substr(at, 5), "AM/PM")) {
      add("AM/PM", false);
      at += 5;
    } else if (IsDateLetter(low)) {
      std::size_t end = at;
      while (end < pattern.size() && (pattern[end] | 0x20) == low) ++end;
      add(text::LCase(pattern.substr(at, end - at)), false);
      at = end;
    } else if (std::string_view("0#.,%@&<>").find(c) != std::string_view::npos) {
      add(pattern.substr(at, 1), false);
      ++at;
    } else {
      const std::size_t start = at;
      text::NextCodePoint(pattern, at);
      add(pattern.substr(start, at - start), true);
    }
  }
  return sections;
}

std::string FormatPattern::FormatNumber(double number) const {
  if (isDate_) return FormatDate(number);
  if (isGeneral_) {
    std::string shown = text::FromDouble(number);
    std::replace(shown.begin(), shown.end(), '.', ',');
    return shown;
  }
  if (number == 0 && sections_.size() > 2 && !sections_[2].empty())
    return NumberSection(sections_[2]).Format(0);
  if (number < 0 && sections_.size() > 1 && !sections_[1].empty())
    return NumberSection(sections_[1]).Format(-number);
  const std::string shown = NumberSection(sections_[0]).Format(std::fabs(number));
  const bool isZero = shown.find_first_of("123456789") == std::string::npos;
  return number < 0 && !isZero ? "-" + shown : shown;
}

std::string FormatPattern::FormatDate(double date) const {
  const auto parts = PartsOf(date);
  if (!parts) {
    throw RuntimeError(kTypeMismatch,
                       "No coinciden los tipos: " + text::FromDouble(date) + " no es una fecha.", "Jet SQL");
  }
  const PatternSection& section = sections_[0];
  const bool halves = std::any_of(section.begin(), section.end(), [](const PatternPiece& piece) {
    return !piece.literal && piece.text == "AM/PM";
  });
  const int hour = halves ? (parts->hour + 11) % 12 + 1 : parts->hour;
  std::string shown;
  bool behindHour = false;
  for (const PatternPiece& piece : section) {
    if (piece.literal || !(IsDateLetter(piece.text[0]) || piece.text == "AM/PM")) {
      shown += piece.text;
    } else if (piece.text == "AM/PM") {
      shown += parts->hour < 12 ? "AM" : "PM";
    } else {
      shown += DatePiece(piece.text, *parts, std::trunc(date), hour, behindHour);
      behindHour = piece.text[0] == 'h';
    }
  }
  return shown;
}

std::string FormatPattern::FormatText(std::string_view text) const {
  const PatternSection& section = sections_[0];
  std::size_t places = 0;
  std::string cased(text);
  for (const PatternPiece& piece : section) {
    if (piece.literal) continue;
    if (piece.text == "<") cased = text::LCase(cased);
    if (piece.text == ">") cased = text::UCase(cased);
    if (piece.text == "@" || piece.text == "&") ++places;
  }
  if (places == 0) {
    for (const PatternPiece& piece : section) {
      if (piece.literal) cased += piece.text;
    }
    return cased;
  }
  const std::size_t length = text::Len(cased);
  std::string shown;
  std::size_t place = 0;
  for (const PatternPiece& piece : section) {
    if (piece.literal) shown += piece.text;
    if (piece.literal || (piece.text != "@" && piece.text != "&")) continue;
    const std::size_t left = places - place++;
    if (place == 1 && length > left) {
      shown += text::Left(cased, length - left + 1);
    } else if (length >= left) {
      shown += text::Mid(cased, length - left + 1, 1);
    } else if (piece.text == "@") {
      shown += ' ';
    }
  }
  return shown;
}

}  // namespace velmar::jet
