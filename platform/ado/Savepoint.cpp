#include "platform/ado/Savepoint.h"

#include <sqlite3.h>

#include "platform/ado/Database.h"

namespace ADODB {

Savepoint::Savepoint(Database& database) : database_(&database), outermost_(!database.InTransaction()) {
  database_->Run("SAVEPOINT velmar");
}

Savepoint::~Savepoint() {
  if (released_) return;
  // A full disk may have undone the whole transaction already; then there is nothing left to undo.
  // The outermost one would be released by a commit, which fails as the one before while the file is read.
  const char* undo = outermost_ ? "ROLLBACK" : "ROLLBACK TO velmar; RELEASE velmar";
  sqlite3_exec(database_->Handle(), undo, nullptr, nullptr, nullptr);
}

void Savepoint::Release() {
  database_->Run("RELEASE velmar");
  released_ = true;
}

}  // namespace ADODB
