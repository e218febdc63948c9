#pragma once

namespace ADODB {

class Database;

/// Makes several engine statements one: unless Release was reached, the destructor undoes all since the
/// constructor. Outside a transaction Release commits. Savepoints may nest.
class Savepoint {
 public:
  explicit Savepoint(Database& database);
  ~Savepoint();
  Savepoint(const Savepoint&) = delete;
  Savepoint& operator=(const Savepoint&) = delete;

  void Release();

 private:
  Database* database_;
  bool outermost_;  ///< it began the transaction, and so it ends it
  bool released_ = false;
};

}  // namespace ADODB
