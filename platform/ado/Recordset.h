#pragma once

#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "platform/ado/Connection.h"
#include "platform/ado/Fields.h"
#include "platform/ado/Variant.h"

namespace ADODB {

class BulkInsert;
class Cursor;

inline constexpr long kOpenForwardOnly = 0;
inline constexpr long kOpenKeyset = 1;
inline constexpr long kOpenDynamic = 2;
inline constexpr long kOpenStatic = 3;
inline constexpr long kLockReadOnly = 1;
inline constexpr long kLockOptimistic = 3;
inline constexpr long kUseServer = 2;
inline constexpr long kUseClient = 3;

/// The rows of a SELECT or of a table. Callers hold it by std::shared_ptr.
///
/// Cursor types: forward-only streams its rows, holds a read lock on the file until it is closed or read to
/// its end, and does not know its RecordCount (-1). Static fixes RecordCount and PageCount at opening and
/// reads the rows when the first one is asked for; if they have changed by then, that is an error, never a
/// mixture. Keyset fixes the rows at opening and reads each by its key; with the optimistic lock, Update
/// writes. A keyset over a SELECT that is not plain columns of one table is read-only.
class Recordset {
 public:
  Recordset();
  ~Recordset();
  Recordset(const Recordset&) = delete;
  Recordset& operator=(const Recordset&) = delete;

  /// Settings for Open; on an open recordset they cannot be changed (kObjectOpen). CacheSize has no effect
  /// here.
  long CursorLocation() const noexcept { return cursorLocation_; }
  void CursorLocation(long location);
  long CacheSize() const noexcept { return cacheSize_; }
  void CacheSize(long rows);
  long CursorType() const noexcept { return cursorType_; }
  void CursorType(long type);
  long LockType() const noexcept { return lockType_; }
  void LockType(long type);
  const std::shared_ptr<Connection>& ActiveConnection() const noexcept { return connection_; }
  void ActiveConnection(std::shared_ptr<Connection> connection);
  /// Rows per page of PageCount, from 1; may be changed at any time.
  long PageSize() const noexcept { return pageSize_; }
  void PageSize(long rows);

  /// Opens the rows of source: a SELECT, or a table's name. Without a connection that of ActiveConnection is
  /// taken; -1 takes the properties CursorType and LockType.
  void Open(std::string_view source, std::shared_ptr<Connection> connection = nullptr, long cursorType = -1,
            long lockType = -1, long options = -1);
  /// kStateClosed (0) or kStateOpen (1).
  long State() const noexcept;
  /// What Update and AddNew have written is in the file afterwards.
  void Close();

  /// End and beginning of the rows; both are true if there are none. (EOF itself is a macro of the C
  /// library.)
  bool Eof() const;
  bool Bof() const;
  void MoveNext();
  /// Not for forward-only recordsets that have moved.
  void MoveFirst();

  ADODB::Fields Fields() const;
  Field Fields(long index) const;
  Field Fields(std::string_view name) const;

  long RecordCount() const;
  long PageCount() const;

  /// Writes one field of the current row at once. In a host database it is durable when this returns.
  void Update(std::string_view field, const Variant& value);

  /// Appends a row to the table of the recordset, which was opened with the optimistic lock over one table.
  /// Fields that are not named get their default. The rows of this recordset do not change. For many rows,
  /// call it inside a transaction, or take BulkInsert.
  void AddNew(const std::vector<std::string>& fields, const std::vector<Variant>& values);

 private:
  friend class Connection;
  explicit Recordset(std::unique_ptr<Cursor> cursor);
  Cursor& OpenCursor() const;
  void RequireClosed() const;

  std::shared_ptr<Connection> connection_;
  std::unique_ptr<Cursor> cursor_;
  std::unique_ptr<BulkInsert> inserter_;
  std::vector<std::string> insertedFields_;
  long cursorLocation_ = kUseServer;
  long cacheSize_ = 1;
  long pageSize_ = 10;
  long cursorType_ = kOpenForwardOnly;
  long lockType_ = kLockReadOnly;
};

}  // namespace ADODB
