#include "platform/ado/Savepoint.h"

#include <sqlite3.h>

#include "platform/ado/Database.h"

namespace ADODB {

Savepoint::Savepoint(Database& database) : database_(&database) {
  database_->Run("SAVEPOINT velmar");
}

Savepoint::~Savepoint() {
  if (released_) return;
  // A full disk may have undone the whole transaction already; then there is nothing left to undo.
  sqlite3_exec(database_->Handle(), "ROLLBACK TO velmar; RELEASE velmar", nullptr, nullptr, nullptr);
}

void Savepoint::Release() {
  database_->Run("RELEASE velmar");
  released_ = true;
}

}  // namespace ADODB
