#include "export/Steps.h"

#ifdef VELMAR_XLSXWRITER
#include <sqlite3.h>
#include <xlsxwriter.h>

#include <filesystem>
#include <vector>

#include "export/BareEngine.h"

namespace velmar::bench {
namespace {

constexpr lxw_row_t kSheetRows = 64000;

void WriteHead(lxw_worksheet* sheet, const std::vector<std::string>& columns) {
  for (std::size_t i = 0; i < columns.size(); ++i) {
    worksheet_write_string(sheet, 0, static_cast<lxw_col_t>(i), columns[i].c_str(), nullptr);
  }
}

void WriteCell(lxw_worksheet* sheet, lxw_row_t line, int column, sqlite3_stmt* row) {
  const auto place = static_cast<lxw_col_t>(column);
  const int type = sqlite3_column_type(row, column);
  if (type == SQLITE_TEXT) {
    worksheet_write_string(sheet, line, place,
                           reinterpret_cast<const char*>(sqlite3_column_text(row, column)), nullptr);
  } else if (type != SQLITE_NULL) {
    worksheet_write_number(sheet, line, place, sqlite3_column_double(row, column), nullptr);
  }
}

}  // namespace

Measures RunXlsxWriter(const std::string& folder, long lastCollaborator) {
  Measures measures;
  const std::string file = folder + "/otro.xlsx";
  StopWatch whole;
  StopWatch parts;
  BareEngine engine(folder);
  engine.Stage(ClausesOf(BenchSelection(lastCollaborator)));
  parts.Lap(measures, "sentencia");
  lxw_workbook_options options{};
  options.constant_memory = LXW_TRUE;
  lxw_workbook* book = workbook_new_opt(file.c_str(), &options);
  lxw_worksheet* sheet = nullptr;
  lxw_row_t rows = 0;
  engine.ForEachRow([&](sqlite3_stmt* row, const std::vector<std::string>& columns) {
    if (rows % kSheetRows == 0) WriteHead(sheet = workbook_add_worksheet(book, nullptr), columns);
    for (int column = 0; column < static_cast<int>(columns.size()); ++column) {
      WriteCell(sheet, rows % kSheetRows + 1, column, row);
    }
    ++rows;
  });
  workbook_close(book);
  parts.Lap(measures, "celdas");
  whole.Lap(measures, "total");
  measures["filas"] = rows;
  measures["octetos"] = static_cast<double>(std::filesystem::file_size(file));
  std::filesystem::remove(file);
  return measures;
}

}  // namespace velmar::bench
#else
namespace velmar::bench {

Measures RunXlsxWriter(const std::string& /*folder*/, long /*lastCollaborator*/) {
  return {};
}

}  // namespace velmar::bench
#endif
