#include "platform/ado/DistinctMemory.h"

#include <utility>

#include "platform/ado/Database.h"
#include "platform/ado/TableNames.h"

namespace ADODB {

void DistinctMemory::Note(std::string table, std::int64_t othersChanges) {
  noted_ = Noted{std::move(table), database_->OwnChanges(), othersChanges};
}

bool DistinctMemory::Holds(std::string_view table) const {
  return noted_ && noted_->table == table && noted_->own == database_->OwnChanges() &&
         noted_->others == database_->OthersChanges();
}

bool DistinctMemory::IsOf(std::string_view table) const {
  return noted_ && SameName(noted_->table, table);
}

}  // namespace ADODB
