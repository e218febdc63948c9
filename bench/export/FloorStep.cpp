#include <sqlite3.h>

#include <filesystem>
#include <memory>
#include <stdexcept>
#include <vector>

#include "export/BareEngine.h"
#include "export/BenchSelection.h"
#include "export/Steps.h"
#include "platform/excel/Workbook.h"

namespace velmar::bench {
namespace {

constexpr long kSheetRows = 64000;

void AddCell(excel::SheetWriter& sheet, sqlite3_stmt* row, int column) {
  switch (sqlite3_column_type(row, column)) {
    case SQLITE_NULL:
      sheet.AddNull();
      break;
    case SQLITE_TEXT:
      sheet.AddText({reinterpret_cast<const char*>(sqlite3_column_text(row, column)),
                     static_cast<std::size_t>(sqlite3_column_bytes(row, column))});
      break;
    default:
      sheet.AddNumber(sqlite3_column_double(row, column));
  }
}

}  // namespace

Measures RunFloor(const std::string& folder, long lastCollaborator) {
  Measures measures;
  const std::string file = folder + "/suelo.xls";
  std::filesystem::remove(file);
  StopWatch whole;
  StopWatch parts;
  BareEngine engine(folder);
  engine.Stage(ClausesOf(BenchSelection(lastCollaborator)));
  parts.Lap(measures, "sentencia");

  long rows = 0;
  long sheets = 0;
  excel::Workbook workbook(file);
  std::unique_ptr<excel::SheetWriter> sheet;
  engine.ForEachRow([&](sqlite3_stmt* row, const std::vector<std::string>& columns) {
    if (rows % kSheetRows == 0) {
      if (sheet) sheet->Commit();
      sheet = workbook.CreateSheet("Hoja" + std::to_string(++sheets), columns);
    }
    for (int column = 0; column < static_cast<int>(columns.size()); ++column) AddCell(*sheet, row, column);
    sheet->EndRow();
    ++rows;
  });
  if (sheet) sheet->Commit();
  parts.Lap(measures, "celdas");
  whole.Lap(measures, "total");
  measures["filas"] = static_cast<double>(rows);
  measures["octetos"] = static_cast<double>(std::filesystem::file_size(file));
  std::filesystem::remove(file);
  return measures;
}

}  // namespace velmar::bench
