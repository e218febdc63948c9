#pragma once

#include <cstdint>
#include <map>
#include <optional>

#include "platform/ado/CountedCursor.h"
#include "platform/ado/KeyedTable.h"
#include "platform/ado/Statement.h"

namespace velmar::jet {
struct Translation;
}

namespace ADODB {

/// The keys of all rows from the start; each row is read by its key when a value is asked for, and written by
/// it.
class KeysetCursor : public CountedCursor {
 public:
  KeysetCursor(std::shared_ptr<Session> session, const velmar::jet::Translation& translation,
               KeyedTable table, bool writes);
  ~KeysetCursor() override;

  void Update(std::size_t column, const Variant& value) override;

 protected:
  Variant StoredValue(std::size_t column) override;
  void FreeStatements() noexcept override;

 private:
  [[noreturn]] static void RaiseDeleted();

  KeyedTable table_;
  bool writes_;
  std::vector<std::int64_t> keys_;
  std::optional<Statement> read_;
  std::map<std::size_t, Statement> updates_;
  std::vector<Variant> row_;
  std::optional<std::size_t> rowPosition_;
  std::int64_t rowVersion_ = 0;  ///< the connection's count of changes when the row was read
};

}  // namespace ADODB
