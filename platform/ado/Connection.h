#pragma once

#include <memory>
#include <string>
#include <string_view>

#include "platform/ado/ConnectionText.h"
#include "platform/ado/Property.h"

namespace ADODB {

class Recordset;
class Session;

inline constexpr long kStateClosed = 0;
inline constexpr long kStateOpen = 1;

/// A connection to one database file. Callers hold it by std::shared_ptr.
///
/// Every failure is a velmar::RuntimeError with a Spanish description. Each statement is atomic: one that
/// fails leaves all files as they were. A connection that is destroyed while open rolls back an open
/// transaction and closes itself and its recordsets.
class Connection {
 public:
  Connection();
  explicit Connection(const std::string& connectionString);
  ~Connection();
  Connection(const Connection&) = delete;
  Connection& operator=(const Connection&) = delete;

  /// kStateClosed (0) or kStateOpen (1).
  long State() const noexcept;

  /// Opens the database file of the text, or of the ConnectionString that is held if the text is empty.
  /// The path is matched regardless of case. Never creates a file: kDatabaseNotFound if there is none.
  /// A wrong or missing password is kWrongPassword; one given for a file without password is ignored.
  /// There are no user accounts: user is "" or "Admin", and their password is "".
  void Open(const std::string& text = {}, const std::string& user = {}, const std::string& password = {},
            long options = -1);
  /// Commits nothing: an open transaction is an error (kTransactionOpen) and the connection stays open.
  /// Recordsets of this connection are closed too.
  void Close();

  const std::string& ConnectionString() const noexcept;
  /// On a closed connection only (kObjectOpen).
  void ConnectionString(const std::string& text);

  /// Runs one Jet SQL statement. A SELECT gives an open recordset with all its rows in memory, so that no
  /// lock stays behind and RecordCount is known; any other statement gives a closed one. affected receives
  /// the number of rows that were written. Databases that the statement names in brackets are attached for
  /// its duration.
  std::shared_ptr<Recordset> Execute(std::string_view text, long* affected = nullptr, long options = -1);

  /// "Data Source", "Data Source Name" (the path with its capitals on disk), "Jet OLEDB:Database Password"
  /// and each key of the connection string, regardless of case; also while closed. kItemNotInCollection
  /// otherwise.
  Property Properties(std::string_view name);

  /// Takes no lock before a statement needs one. Transactions do not nest.
  void BeginTrans();
  void CommitTrans();
  void RollbackTrans();

  /// Sets, changes or (empty) removes the password of the open database, and takes it into the connection
  /// string.
  void SetDatabasePassword(const std::string& password);

 private:
  friend class Property;
  friend class Recordset;
  friend class BulkInsert;
  Session& OpenSession() const;
  std::string PropertyValue(const std::string& name) const;
  void PropertyValue(const std::string& name, const std::string& value);

  ConnectionText settings_;
  std::string text_;
  std::string realPath_;
  std::shared_ptr<Session> session_;
};

}  // namespace ADODB
