#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace velmar::jet {
struct TargetTable;
struct Translation;
}  // namespace velmar::jet

namespace ADODB {

class Database;
class DistinctMemory;

/// The rows of a table that repeat an earlier one, as the engine's DISTINCT would find them, at the cost of
/// 32 bytes a row instead of a sorted copy of all rows.
class RepeatedRows {
 public:
  /// Nothing unless the translation is DISTINCT of one whole table whose texts compare by JET or by bytes and
  /// whose rows have keys. A table that the memory holds is not searched. To be called inside the transaction
  /// that copies, when it has begun to write.
  static std::optional<RepeatedRows> Of(Database& database, const velmar::jet::Translation& translation,
                                        const DistinctMemory& memory);

  /// Inserts the other rows into a new table with the same columns, in the order of their keys; their number.
  std::int64_t CopyOthers(const velmar::jet::TargetTable& target) const;

  /// Deletes them from the table itself.
  void Remove() const;
  std::int64_t Count() const noexcept { return static_cast<std::int64_t>(rows_.size()); }

  /// True if the copy, whose texts all compare by JET, has no equal rows either.
  bool CopyIsDistinct() const noexcept { return allJet_; }

 private:
  explicit RepeatedRows(Database& database) : database_(&database) {}
  bool CanCompare(const std::string& alias, const std::string& table);
  void Find();

  Database* database_;
  std::string table_;  ///< quoted, with its database
  std::vector<std::string> columns_;
  bool allJet_ = true;
  struct Row {
    std::int64_t place;  ///< among all, counted from 1
    std::int64_t key;
  };
  std::vector<Row> rows_;  ///< in the order of the table
};

}  // namespace ADODB
