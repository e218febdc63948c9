#include "platform/text/Numbers.h"

#include <array>
#include <charconv>
#include <cmath>
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <system_error>

#include "platform/error/ErrorNumber.h"
#include "platform/error/RuntimeError.h"

namespace velmar::text {
namespace {

[[noreturn]] void Overflow(std::string_view text) {
  throw RuntimeError(kOverflow, "El número \"" + std::string(text) + "\" es demasiado grande.", "text");
}

double RadixValue(std::string_view digits, int base, std::string_view text) {
  std::uint32_t value = 0;
  const auto result = std::from_chars(digits.data(), digits.data() + digits.size(), value, base);
  if (result.ec == std::errc::result_out_of_range) Overflow(text);
  if (result.ec != std::errc{}) return 0;
  if (value <= 0xFFFFU) return static_cast<std::int16_t>(value);
  return static_cast<std::int32_t>(value);
}

bool IsDigit(char c) {
  return c >= '0' && c <= '9';
}

// The part that a number can be made of, with E as the sign of an exponent.
std::string DecimalPart(std::string_view text) {
  std::string number;
  std::size_t at = 0;
  const auto takeDigits = [&] {
    const std::size_t before = number.size();
    while (at < text.size() && IsDigit(text[at])) number += text[at++];
    return number.size() - before;
  };
  if (at < text.size() && (text[at] == '-' || text[at] == '+')) {
    if (text[at] == '-') number += '-';
    ++at;
  }
  std::size_t digits = takeDigits();
  if (at < text.size() && text[at] == '.') {
    number += '.';
    ++at;
    digits += takeDigits();
  }
  if (digits == 0) return {};
  if (at < text.size() && std::string_view("eEdD").find(text[at]) != std::string_view::npos) {
    const std::size_t mantissa = number.size();
    number += 'e';
    ++at;
    if (at < text.size() && (text[at] == '-' || text[at] == '+')) number += text[at++];
    if (takeDigits() == 0) number.resize(mantissa);
  }
  return number;
}

}  // namespace

std::string Str(long long number) {
  std::string digits = std::to_string(number);
  return number < 0 ? digits : " " + digits;
}

std::string FromDouble(double number) {
  if (std::isnan(number)) return "1.#NAN";
  if (std::isinf(number)) return number > 0 ? "1.#INF" : "-1.#INF";
  if (number == 0) return "0";
  constexpr int kSignificantDigits = 15;
  std::array<char, 32> buffer{};
  const auto result = std::to_chars(buffer.data(), buffer.data() + buffer.size(), number,
                                    std::chars_format::general, kSignificantDigits);
  std::string text(buffer.data(), result.ptr);
  if (const auto exponent = text.find('e'); exponent != std::string::npos) text[exponent] = 'E';
  return text;
}

double Val(std::string_view text) {
  std::string packed;
  packed.reserve(text.size());
  for (const char c : text) {
    if (c != ' ' && c != '\t' && c != '\n') packed += c;
  }
  const std::string_view view = packed;
  if (view.size() > 2 && view[0] == '&') {
    if (view[1] == 'H' || view[1] == 'h') return RadixValue(view.substr(2), 16, text);
    if (view[1] == 'O' || view[1] == 'o') return RadixValue(view.substr(2), 8, text);
  }
  const std::string number = DecimalPart(view);
  double value = 0;
  const auto result = std::from_chars(number.data(), number.data() + number.size(), value);
  if (result.ec != std::errc::result_out_of_range) return value;
  // from_chars says the same for a number that is too small to be told from 0.
  if (std::strtod(number.c_str(), nullptr) != 0) Overflow(text);
  return 0;
}

}  // namespace velmar::text
