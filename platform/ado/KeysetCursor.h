#pragma once

#include <cstdint>
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "platform/ado/CountedCursor.h"
#include "platform/ado/DirectCell.h"
#include "platform/ado/KeyedTable.h"
#include "platform/ado/Statement.h"

namespace velmar::jet {
struct Translation;
}

namespace ADODB {

/// The keys of all rows from the start; each row is read by its key when a value is asked for, and written by
/// it. Of a row only those columns are read that have been asked for. While the connection's transaction
/// keeps others from writing, the rows behind the current one are read with it.
class KeysetCursor : public CountedCursor {
 public:
  KeysetCursor(std::shared_ptr<Session> session, const velmar::jet::Translation& translation,
               KeyedTable table, bool writes);
  ~KeysetCursor() override;

  void MoveFirst() override;
  void Update(std::size_t column, const Variant& value) override;
  void BeforeCommit() noexcept override;

 protected:
  Variant StoredValue(std::size_t column) override;
  void FreeStatements() noexcept override;

 private:
  /// How one column is written.
  struct Writer {
    Statement update;
    std::unique_ptr<DirectCell> direct;  ///< null where the column does not suit
  };
  struct ReadRow {
    bool found = false;
    bool current = false;  ///< false when it has been written since
  };

  [[noreturn]] static void RaiseDeleted();
  void Want(std::size_t column);
  void Read();
  std::size_t RowsToRead() const;
  bool IsRead() const;
  bool HoldsText(std::size_t column) const;
  Writer& WriterOf(std::size_t column);
  bool WriteDirectly(Writer& writer, std::size_t column, const Variant& value);

  KeyedTable table_;
  bool writes_;
  std::vector<std::int64_t> keys_;
  std::map<std::size_t, Writer> writers_;
  std::optional<Statement> read_;
  std::string wanted_;       ///< the list of the columns that have been asked for
  std::vector<int> cellOf_;  ///< for each column its place in that list, or -1
  std::size_t width_ = 0;    ///< columns in that list
  std::size_t firstRead_ = 0;
  std::vector<ReadRow> rows_;  ///< from position firstRead_ on
  std::vector<Variant> cells_;
  std::vector<bool> texts_;  ///< for each cell, whether a text is stored, and not bytes of no kind
  std::int64_t moment_ = 0;  ///< when the rows were read
};

}  // namespace ADODB
