#pragma once

#include <string>

namespace velmar::jet {

/// What can be said of an expression's values without knowing any table.
enum class ValueType { kUnknown, kNull, kText, kInteger, kDouble, kCurrency, kBit, kDate };

/// True for the types whose values are numbers to the engine.
constexpr bool IsNumeric(ValueType type) {
  return type == ValueType::kInteger || type == ValueType::kDouble || type == ValueType::kCurrency ||
         type == ValueType::kBit || type == ValueType::kDate;
}

/// The column type that holds such values; empty if it is not fixed.
std::string DeclaredType(ValueType type);

}  // namespace velmar::jet
