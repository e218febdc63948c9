#pragma once

#include <freexl.h>

#include <stdexcept>
#include <string>
#include <vector>

#include "platform/text/Numbers.h"

namespace velmar::sample {

/// The cells of a workbook as text, read by a library that shares no code with its writer: sheets, rows,
/// cells.
inline std::vector<std::vector<std::vector<std::string>>> ReadWorkbook(const std::string& path) {
  const void* handle = nullptr;
  if (freexl_open(path.c_str(), &handle) != FREEXL_OK) throw std::runtime_error("unreadable: " + path);
  unsigned int sheetCount = 0;
  freexl_get_info(handle, FREEXL_BIFF_SHEET_COUNT, &sheetCount);
  std::vector<std::vector<std::vector<std::string>>> sheets(sheetCount);
  for (unsigned int sheet = 0; sheet < sheetCount; ++sheet) {
    unsigned int rows = 0;
    unsigned short columns = 0;
    freexl_select_active_worksheet(handle, static_cast<unsigned short>(sheet));
    freexl_worksheet_dimensions(handle, &rows, &columns);
    for (unsigned int row = 0; row < rows; ++row) {
      std::vector<std::string>& cells = sheets[sheet].emplace_back();
      for (unsigned short column = 0; column < columns; ++column) {
        FreeXL_CellValue cell{};
        if (freexl_get_cell_value(handle, row, column, &cell) != FREEXL_OK)
          throw std::runtime_error("bad cell");
        const bool isText = cell.type != FREEXL_CELL_INT && cell.type != FREEXL_CELL_DOUBLE;
        if (cell.type == FREEXL_CELL_INT) cells.push_back(std::to_string(cell.value.int_value));
        if (cell.type == FREEXL_CELL_DOUBLE) cells.push_back(text::FromDouble(cell.value.double_value));
        if (isText) cells.emplace_back(cell.type == FREEXL_CELL_NULL ? "" : cell.value.text_value);
      }
    }
  }
  freexl_close(handle);
  return sheets;
}

}  // namespace velmar::sample
