#pragma once

#include <cstddef>
#include <memory>
#include <string_view>
#include <vector>

#include "platform/ado/Variant.h"

namespace ADODB {

class Statement;

/// Rows in compact memory: a few bytes a cell beside the text itself, in large blocks. Rows are read by
/// number, cells of one row in any order.
class RowStore {
 public:
  /// Appends the current row of the statement.
  void Append(const Statement& statement);

  std::size_t RowCount() const noexcept { return rows_.size(); }
  /// Null, whole number, double or text. row and column must exist.
  Variant Value(std::size_t row, std::size_t column) const;

 private:
  char* Reserve(std::size_t size);

  std::vector<std::unique_ptr<char[]>> blocks_;
  std::size_t free_ = 0;
  char* next_ = nullptr;
  std::vector<const char*> rows_;
};

}  // namespace ADODB
