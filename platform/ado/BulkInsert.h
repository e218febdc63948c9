#pragma once

#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "platform/ado/Variant.h"

namespace ADODB {

class Connection;

/// Appends many rows to one table through one prepared statement: the typed, fast way beside
/// Recordset::AddNew.
///
/// Give the cells of a row in the order of the columns, then EndRow. In a host database each row is a
/// transaction of its own unless BeginTrans is in force, so wrap bulk work in BeginTrans and CommitTrans. A
/// row that fails (a repeated key, a missing value) is not written and the writer goes on to work with the
/// next one.
class BulkInsert {
 public:
  /// kUnknownTable or kUnknownName if the table or a column does not exist. When the connection closes, the
  /// writer is of no further use.
  BulkInsert(Connection& connection, std::string_view table, const std::vector<std::string>& columns);
  ~BulkInsert();
  BulkInsert(const BulkInsert&) = delete;
  BulkInsert& operator=(const BulkInsert&) = delete;

  void AddNull();
  void AddLong(long long value);
  void AddDouble(double value);
  /// Stored as -1 and 0.
  void AddBoolean(bool value);
  /// The text must stay unchanged until EndRow.
  void AddText(std::string_view utf8);
  /// A whole row at once, with EndRow.
  void Row(const std::vector<Variant>& values);
  /// Writes the row; kColumnCountMismatch unless there are as many cells as columns.
  void EndRow();

 private:
  class Writer;
  std::unique_ptr<Writer> writer_;
};

}  // namespace ADODB
