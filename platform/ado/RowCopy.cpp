#include "platform/ado/RowCopy.h"

#include <sqlite3.h>

#include <numeric>

#include "platform/ado/Database.h"
#include "platform/ado/DistinctMemory.h"
#include "platform/ado/RepeatedRows.h"
#include "platform/ado/Savepoint.h"
#include "platform/ado/Statement.h"
#include "platform/ado/TableNames.h"
#include "platform/error/ErrorNumber.h"
#include "platform/error/RuntimeError.h"
#include "platform/excel/Workbook.h"
#include "platform/files/Paths.h"
#include "platform/jet/Translation.h"

namespace ADODB {
namespace {

using velmar::RuntimeError;
using velmar::excel::SheetWriter;
using velmar::excel::Workbook;
using velmar::jet::StatementKind;

constexpr const char* kSource = "ADODB.Connection";

Workbook WorkbookAt(const std::string& path) {
  if (const auto found = velmar::files::ResolveForChange(path)) return Workbook(*found);
  return Workbook(velmar::files::ResolveForCreation(path));
}

void AddCell(SheetWriter& writer, const Statement& select, int column, bool boolean) {
  switch (select.KindOf(column)) {
    case Statement::Kind::kNull:
      return writer.AddNull();
    case Statement::Kind::kWhole:
      if (boolean) return writer.AddBoolean(select.Long(column) != 0);
      return writer.AddNumber(static_cast<double>(select.Long(column)));
    case Statement::Kind::kDouble:
      return writer.AddNumber(select.Double(column));
    case Statement::Kind::kText:
      return writer.AddText(select.Text(column));
  }
}

}  // namespace

void RefuseExistingTable(Database& database, const velmar::jet::TargetTable& target) {
  if (!FindTable(database, target.alias, target.table)) return;
  throw RuntimeError(
      velmar::kTableExists,
      "Ya existe la tabla «" + target.table + "» en la base de datos " + database.FileOf(target.alias) + ".",
      kSource, target.span);
}

RowCopy::RowCopy(Database& database, const velmar::jet::Translation& translation, DistinctMemory& memory)
    : database_(database), translation_(translation), memory_(memory) {
  columns_ = ColumnsOf(Statement(database_, translation_.sql, &translation_), translation_);
}

std::int64_t RowCopy::Run() {
  const bool create = translation_.kind == StatementKind::kSelectInto;
  if (create) RefuseRepeatedNames();
  if (translation_.target->excel) return create ? CreateSheet() : AppendToSheet();
  return create ? CreateTable() : AppendToTable();
}

std::int64_t RowCopy::CreateTable() {
  const velmar::jet::TargetTable& target = *translation_.target;
  RefuseExistingTable(database_, target);
  std::vector<velmar::jet::OutputColumn> columns;
  for (const Column& column : columns_) {
    columns.push_back({column.name, column.type});
  }
  Savepoint savepoint(database_);
  database_.Run(velmar::jet::CreateTableText(target, columns));
  bool distinct = false;
  const std::int64_t rows = FillTable(distinct);
  // Asked for while nobody else can write to the file: what comes behind the copy is a change.
  const std::int64_t othersChanges = database_.OthersChanges();
  savepoint.Release();
  memory_.Forget();
  if (distinct && target.alias == "main" && !database_.InTransaction())
    memory_.Note(target.table, othersChanges);
  return rows;
}

/// distinct: whether the new table is known to hold no two equal rows.
std::int64_t RowCopy::FillTable(bool& distinct) {
  const velmar::jet::TargetTable& target = *translation_.target;
  if (const auto repeated = RepeatedRows::Of(database_, translation_, memory_)) {
    distinct = repeated->CopyIsDistinct();
    return repeated->CopyOthers(target);
  }
  Statement insert(database_, velmar::jet::InsertText(target, {}, translation_.sql), &translation_);
  insert.Step();
  return sqlite3_changes64(database_.Handle());
}

std::int64_t RowCopy::AppendToTable() {
  velmar::jet::TargetTable target = *translation_.target;
  const auto table = FindTable(database_, target.alias, target.table);
  if (!table) {
    throw RuntimeError(velmar::kUnknownTable,
                       "No existe la tabla «" + target.table + "» en la base de datos " +
                           database_.FileOf(target.alias) + ". Compruebe que el nombre esté bien escrito.",
                       kSource, target.span);
  }
  target.table = *table;
  const std::vector<std::string> columns = TargetColumns(ColumnNames(database_, target.alias, *table));
  Statement insert(database_, velmar::jet::InsertText(target, columns, translation_.sql), &translation_);
  insert.Step();
  return sqlite3_changes64(database_.Handle());
}

std::int64_t RowCopy::CreateSheet() {
  Workbook workbook = WorkbookAt(translation_.target->excelFile);
  std::vector<int> cells(columns_.size());
  std::iota(cells.begin(), cells.end(), 0);
  const auto writer = workbook.CreateSheet(translation_.target->table, NamesOf(columns_));
  return FillSheet(*writer, cells);
}

std::int64_t RowCopy::AppendToSheet() {
  Workbook workbook = WorkbookAt(translation_.target->excelFile);
  const std::vector<std::string> sheetColumns = workbook.ColumnNames(translation_.target->table);
  const std::vector<std::string> names = TargetColumns(sheetColumns);
  std::vector<int> cells(sheetColumns.size(), -1);
  for (std::size_t column = 0; column < names.size(); ++column) {
    cells[*FindName(sheetColumns, names[column])] = static_cast<int>(column);
  }
  const auto writer = workbook.AppendTo(translation_.target->table, sheetColumns.size());
  return FillSheet(*writer, cells);
}

/// cells: for each column of the sheet the output column that fills it, or -1.
std::int64_t RowCopy::FillSheet(SheetWriter& writer, const std::vector<int>& cells) {
  Statement select(database_, translation_.sql, &translation_);
  while (select.Step()) {
    for (const int column : cells) {
      if (column < 0) {
        writer.AddNull();
      } else {
        AddCell(writer, select, column, columns_[static_cast<std::size_t>(column)].boolean);
      }
    }
    writer.EndRow();
  }
  writer.Commit();
  return static_cast<std::int64_t>(writer.RowCount());
}

std::vector<std::string> RowCopy::TargetColumns(const std::vector<std::string>& available) const {
  const velmar::jet::TargetTable& target = *translation_.target;
  const std::vector<std::string>& listed = target.columns;
  const std::vector<std::string> wanted = listed.empty() ? NamesOf(columns_) : listed;
  std::vector<std::string> columns;
  std::vector<bool> taken(available.size(), false);
  for (const std::string& name : wanted) {
    const auto place = FindName(available, name);
    if (place && !taken[*place]) {
      taken[*place] = true;
      columns.push_back(available[*place]);
    } else if (!listed.empty()) {
      throw RuntimeError(place ? velmar::kDuplicateOutput : velmar::kUnknownName,
                         place ? "El campo «" + name + "» está dos veces en la lista de campos."
                               : "La tabla «" + target.table + "» no tiene un campo «" + name + "».",
                         kSource, target.span);
    }
  }
  const bool byName = columns.size() == columns_.size();
  if (byName) return columns;
  if (listed.empty() && available.size() == columns_.size()) return available;
  throw RuntimeError(velmar::kColumnCountMismatch,
                     "El número de valores (" + std::to_string(columns_.size()) +
                         ") no es el de los campos de destino (" +
                         std::to_string(listed.empty() ? available.size() : listed.size()) +
                         ") de la tabla «" + target.table + "».",
                     kSource, target.span);
}

void RowCopy::RefuseRepeatedNames() const {
  const std::vector<std::string> names = NamesOf(columns_);
  for (std::size_t index = 0; index < names.size(); ++index) {
    for (std::size_t other = index + 1; other < names.size(); ++other) {
      if (!SameName(names[index], names[other])) continue;
      throw RuntimeError(velmar::kDuplicateOutput,
                         "El campo de destino «" + names[index] +
                             "» está dos veces en la sentencia. Dé a uno de los dos otro nombre con AS.",
                         kSource, translation_.target->span);
    }
  }
}

}  // namespace ADODB
