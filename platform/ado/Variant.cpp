#include "platform/ado/Variant.h"

#include <cmath>

#include "platform/error/ErrorNumber.h"
#include "platform/error/RuntimeError.h"
#include "platform/jet/NumberText.h"
#include "platform/text/Numbers.h"

namespace ADODB {
namespace {

using velmar::RuntimeError;

[[noreturn]] void RaiseNull() {
  throw RuntimeError(velmar::kInvalidUseOfNull, "Uso no válido de Null: el campo no tiene valor.",
                     "ADODB.Field");
}

double NumberOf(const std::string& text) {
  if (const auto number = velmar::jet::ReadNumber(text)) return *number;
  throw RuntimeError(velmar::kTypeMismatch, "No coinciden los tipos: «" + text + "» no es un número.",
                     "ADODB.Field");
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
