#include "platform/ado/DistinctMemory.h"

#include <utility>

#include "platform/ado/Database.h"

namespace ADODB {

void DistinctMemory::Note(std::string table) {
  noted_ = Noted{std::move(table), database_->OwnChanges(), database_->OthersChanges()};
}

bool DistinctMemory::Holds(std::string_view table) const {
  return noted_ && noted_->table == table && Table();
}

std::optional<std::string> DistinctMemory::Table() const {
  const bool same =
      noted_ && noted_->own == database_->OwnChanges() && noted_->others == database_->OthersChanges();
  return same ? std::optional<std::string>(noted_->table) : std::nullopt;
}

}  // namespace ADODB
