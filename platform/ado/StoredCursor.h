#pragma once

#include "platform/ado/CountedCursor.h"
#include "platform/ado/RowStore.h"

namespace velmar::jet {
struct Translation;
}

namespace ADODB {

/// All rows in memory from the start; no lock and no statement stays behind.
class StoredCursor : public CountedCursor {
 public:
  StoredCursor(std::shared_ptr<Session> session, const velmar::jet::Translation& translation);

 protected:
  Variant StoredValue(std::size_t column) override { return rows_.Value(Position(), column); }
  void FreeStatements() noexcept override {}

 private:
  RowStore rows_;
};

}  // namespace ADODB
