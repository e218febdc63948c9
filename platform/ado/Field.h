#pragma once

#include <string>

#include "platform/ado/Variant.h"

namespace ADODB {

class Cursor;

/// One column of an open recordset; Value is that of the current row. Valid while the recordset is open.
class Field {
 public:
  Field(Cursor& cursor, std::size_t index) noexcept : cursor_(&cursor), index_(index) {}

  const std::string& Name() const;
  /// kNoCurrentRow before the first and behind the last row, kRecordDeleted if the row has been deleted
  /// since.
  Variant Value() const;

 private:
  Cursor* cursor_;
  std::size_t index_;
};

}  // namespace ADODB
