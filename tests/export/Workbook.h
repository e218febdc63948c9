#pragma once

#include <freexl.h>
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "platform/text/Numbers.h"

namespace velmar::testing {

struct Sheet {
  std::string name;
  /// The first row holds the columns' names. Empty cells are empty texts, numbers as Jet shows them.
  std::vector<std::vector<std::string>> rows;
};

inline std::string CellText(const FreeXL_CellValue& cell) {
  switch (cell.type) {
    case FREEXL_CELL_INT:
      return std::to_string(cell.value.int_value);
    case FREEXL_CELL_DOUBLE:
      return text::FromDouble(cell.value.double_value);
    case FREEXL_CELL_NULL:
      return {};
    default:
      return cell.value.text_value;
  }
}

/// The sheets of a workbook, as a reader that is not ours understands them.
inline std::vector<Sheet> ReadWorkbook(const std::string& path) {
  const void* book = nullptr;
  std::vector<Sheet> sheets;
  const int opened = freexl_open(path.c_str(), &book);
  EXPECT_EQ(opened, FREEXL_OK) << path;
  if (opened != FREEXL_OK) return sheets;
  unsigned int count = 0;
  EXPECT_EQ(freexl_get_info(book, FREEXL_BIFF_SHEET_COUNT, &count), FREEXL_OK);
  for (unsigned short index = 0; index < count; ++index) {
    const char* name = nullptr;
    unsigned int rows = 0;
    unsigned short columns = 0;
    EXPECT_EQ(freexl_get_worksheet_name(book, index, &name), FREEXL_OK);
    EXPECT_EQ(freexl_select_active_worksheet(book, index), FREEXL_OK);
    EXPECT_EQ(freexl_worksheet_dimensions(book, &rows, &columns), FREEXL_OK);
    Sheet sheet{name, std::vector<std::vector<std::string>>(rows, std::vector<std::string>(columns))};
    for (unsigned int row = 0; row < rows; ++row) {
      for (unsigned short column = 0; column < columns; ++column) {
        FreeXL_CellValue cell;
        EXPECT_EQ(freexl_get_cell_value(book, row, column, &cell), FREEXL_OK);
        sheet.rows[row][column] = CellText(cell);
      }
    }
    sheets.push_back(std::move(sheet));
  }
  freexl_close(book);
  return sheets;
}

}  // namespace velmar::testing
