#pragma once

#include <concepts>
#include <optional>
#include <string_view>

#include "platform/ado/BulkInsert.h"

namespace velmar::sample {

/// Gives one cell to the writer; an empty optional is NULL.
template <typename Value>
void AddCell(ADODB::BulkInsert& rows, const Value& value) {
  if constexpr (std::same_as<Value, bool>) {
    rows.AddBoolean(value);
  } else if constexpr (std::integral<Value>) {
    rows.AddLong(static_cast<long long>(value));
  } else if constexpr (std::floating_point<Value>) {
    rows.AddDouble(value);
  } else {
    rows.AddText(std::string_view(value));
  }
}

template <typename Value>
void AddCell(ADODB::BulkInsert& rows, const std::optional<Value>& value) {
  if (value) {
    AddCell(rows, *value);
  } else {
    rows.AddNull();
  }
}

/// Writes one row, one argument a column, in the order of the writer's columns.
template <typename... Values>
void WriteRow(ADODB::BulkInsert& rows, const Values&... values) {
  (AddCell(rows, values), ...);
  rows.EndRow();
}

}  // namespace velmar::sample
