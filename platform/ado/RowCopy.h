#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "platform/ado/Column.h"

namespace velmar::excel {
class SheetWriter;
}

namespace velmar::jet {
struct TargetTable;
}

namespace ADODB {

class Database;
class DistinctMemory;

/// kTableExists with the place in the Jet text if the database has a table of this name, regardless of case.
void RefuseExistingTable(Database& database, const velmar::jet::TargetTable& target);

/// Carries the rows of a SELECT to where a statement's INTO or INSERT INTO sends them: a table of any
/// attached database or a sheet of a workbook. All rows or none.
class RowCopy {
 public:
  /// All must outlive the copy; the databases that the translation names are attached.
  RowCopy(Database& database, const velmar::jet::Translation& translation, DistinctMemory& memory);

  /// The number of rows that were written.
  std::int64_t Run();

 private:
  std::int64_t CreateTable();
  std::int64_t FillTable(bool& distinct);
  std::int64_t AppendToTable();
  std::int64_t CreateSheet();
  std::int64_t AppendToSheet();
  std::int64_t FillSheet(velmar::excel::SheetWriter& writer, const std::vector<int>& cells);
  /// For each output column the name of the target's column that receives it.
  std::vector<std::string> TargetColumns(const std::vector<std::string>& available) const;
  void RefuseRepeatedNames() const;

  Database& database_;
  const velmar::jet::Translation& translation_;
  DistinctMemory& memory_;
  std::vector<Column> columns_;
};

}  // namespace ADODB
