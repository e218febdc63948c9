#include "platform/ado/Variant.h"

#include <charconv>
#include <cmath>

#include "platform/error/ErrorNumber.h"
#include "platform/error/RuntimeError.h"
#include "platform/text/Numbers.h"
#include "platform/text/Trim.h"

namespace ADODB {
namespace {

using velmar::RuntimeError;

[[noreturn]] void RaiseNull() {
  throw RuntimeError(velmar::kInvalidUseOfNull, "Uso no válido de Null: el campo no tiene valor.",
                     "ADODB.Field");
}

/// The whole text must be one number; a comma is taken as the decimal sign too.
double NumberOf(const std::string& text) {
  std::string digits = velmar::text::Trim(text);
  if (const auto comma = digits.find(','); comma != std::string::npos) digits[comma] = '.';
  const char* first = digits.data();
  const char* last = first + digits.size();
  if (first != last && *first == '+') ++first;
  double number = 0;
  const auto [end, failure] = std::from_chars(first, last, number);
  if (failure != std::errc{} || end != last || !std::isfinite(number)) {
    throw RuntimeError(velmar::kTypeMismatch, "No coinciden los tipos: «" + text + "» no es un número.",
                       "ADODB.Field");
  }
  return number;
}

}  // namespace

std::string Variant::AsText() const {
  if (IsNull()) RaiseNull();
  if (const auto* text = std::get_if<std::string>(&value_)) return *text;
  if (const auto* whole = std::get_if<long long>(&value_)) return std::to_string(*whole);
  if (const auto* number = std::get_if<double>(&value_)) return velmar::text::FromDouble(*number);
  return std::get<bool>(value_) ? "-1" : "0";
}

std::string Variant::TextOrEmpty() const {
  return IsNull() ? std::string() : AsText();
}

long long Variant::AsLong() const {
  if (const auto* whole = std::get_if<long long>(&value_)) return *whole;
  if (const auto* boolean = std::get_if<bool>(&value_)) return *boolean ? -1 : 0;
  const double number = std::nearbyint(AsDouble());
  if (!(number >= -0x1p63 && number < 0x1p63)) {
    throw RuntimeError(velmar::kOverflow, "Desbordamiento: " + AsText() + " no cabe en un número entero.",
                       "ADODB.Field");
  }
  return static_cast<long long>(number);
}

double Variant::AsDouble() const {
  if (IsNull()) RaiseNull();
  if (const auto* number = std::get_if<double>(&value_)) return *number;
  if (const auto* text = std::get_if<std::string>(&value_)) return NumberOf(*text);
  if (const auto* whole = std::get_if<long long>(&value_)) return static_cast<double>(*whole);
  return std::get<bool>(value_) ? -1.0 : 0.0;
}

bool Variant::AsBoolean() const {
  if (const auto* boolean = std::get_if<bool>(&value_)) return *boolean;
  return AsDouble() != 0.0;
}

}  // namespace ADODB
