#include "platform/jet/NumberText.h"

#include <algorithm>
#include <charconv>
#include <string>
#include <system_error>

namespace velmar::jet {

std::optional<double> ReadNumber(std::string_view text) {
  constexpr auto kNone = std::string_view::npos;
  while (!text.empty() && text.front() == ' ') text.remove_prefix(1);
  while (!text.empty() && text.back() == ' ') text.remove_suffix(1);
  if (text.starts_with('+')) {
    text.remove_prefix(1);
    if (text.starts_with('-')) return std::nullopt;
  }
  if (text.find_first_not_of("+-0123456789.,eE") != kNone) return std::nullopt;

  const std::size_t point = text.rfind('.');
  const std::size_t comma = text.rfind(',');
  char decimal = comma == kNone ? '.' : ',';
  if (point != kNone && comma != kNone) decimal = point > comma ? '.' : ',';
  if (std::count(text.begin(), text.end(), decimal) > 1) return std::nullopt;
  std::string plain;
  for (const char c : text) {
    if (c == decimal) {
      plain += '.';
    } else if (c != '.' && c != ',') {
      plain += c;
    }
  }
  double number = 0;
  const char* end = plain.data() + plain.size();
  const auto result = std::from_chars(plain.data(), end, number);
  if (result.ec != std::errc{} || result.ptr != end) return std::nullopt;
  return number;
}

}  // namespace velmar::jet
