#pragma once

#include <string_view>

#include "platform/ado/Field.h"

namespace ADODB {

/// The columns of an open recordset. Valid while the recordset is open.
class Fields {
 public:
  explicit Fields(Cursor& cursor) noexcept : cursor_(&cursor) {}

  long Count() const;
  /// From 0; kItemNotInCollection if there is no such column.
  Field Item(long index) const;
  /// Regardless of case; kItemNotInCollection if there is no such column.
  Field Item(std::string_view name) const;

 private:
  Cursor* cursor_;
};

}  // namespace ADODB
