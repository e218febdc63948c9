#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "platform/ado/RepeatedRows.h"
#include "platform/jet/Translation.h"

namespace ADODB {

class Database;
class DistinctMemory;

/// A SELECT DISTINCT * INTO of a whole table of the same file that is put off: if the table is dropped next,
/// it becomes the copy itself, and no row is written. While it is put off nobody else may write to the file.
class PutOffCopy {
 public:
  /// Nothing for any other statement, and where the table has keys, indexes or triggers, which a copy has
  /// not. Finds the repeated rows, and refuses what the statement itself would refuse.
  static std::optional<PutOffCopy> Of(Database& database, const velmar::jet::Translation& translation,
                                      const DistinctMemory& memory);

  /// The number of rows of the copy.
  std::int64_t RowCount() const;
  const std::string& Source() const noexcept { return source_; }
  const std::string& Target() const noexcept { return translation_.target->table; }
  const velmar::jet::Translation& Translated() const noexcept { return translation_; }

  /// Makes the table the copy, all or nothing.
  void TakeSource() const;
  /// Whether the copy, made so, is known to hold no two equal rows.
  bool IsDistinct() const noexcept { return repeated_.CopyIsDistinct(); }

 private:
  PutOffCopy(Database& database, velmar::jet::Translation translation, std::string source,
             RepeatedRows repeated);

  Database* database_;
  velmar::jet::Translation translation_;
  std::string source_;
  RepeatedRows repeated_;
};

}  // namespace ADODB
