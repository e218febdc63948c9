#pragma once

#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "platform/ado/Column.h"
#include "platform/ado/SessionUser.h"
#include "platform/ado/Variant.h"

namespace ADODB {

/// The rows behind an open recordset: one derived class a kind of cursor. Each starts on its first row.
class Cursor : public SessionUser {
 public:
  explicit Cursor(std::shared_ptr<Session> session) : SessionUser(std::move(session)) {}

  const std::vector<Column>& Columns() const noexcept { return columns_; }
  /// kItemNotInCollection.
  std::size_t ColumnIndex(std::string_view name) const;

  /// The table that AddNew appends to, empty if the rows are not those of one table or may not be written.
  const std::string& Table() const noexcept { return table_; }
  void Table(std::string name) { table_ = std::move(name); }

  virtual bool Eof() const = 0;
  virtual bool Bof() const = 0;
  virtual void MoveNext() = 0;
  virtual void MoveFirst() = 0;
  /// -1 if it is not known.
  virtual long RecordCount() const = 0;
  Variant Value(std::size_t column);
  /// Refuses unless the kind of cursor writes.
  virtual void Update(std::size_t column, const Variant& value);

  /// Ends the batch of the session that the cursor's updates may have begun.
  void Finish();

 protected:
  /// The current row's value as stored; there is a current row.
  virtual Variant StoredValue(std::size_t column) = 0;
  void Columns(std::vector<Column> columns) { columns_ = std::move(columns); }
  void RequireRow() const;

 private:
  std::vector<Column> columns_;
  std::string table_;
};

}  // namespace ADODB
