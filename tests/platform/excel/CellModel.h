#pragma once

#include <string>
#include <variant>
#include <vector>

#include "platform/excel/Workbook.h"

/// What a workbook should hold, to write it and to compare what an independent reader finds in it.
struct CellModel {
  using Cell = std::variant<std::monostate, double, bool, std::string>;
  using Row = std::vector<Cell>;
  struct Sheet {
    std::string name;
    std::vector<Row> rows;  // the first one holds the columns' names
  };

  std::vector<Sheet> sheets;

  static void AddRow(velmar::excel::SheetWriter& writer, const Row& row);

  /// One committed statement each, on the workbook and here.
  void Create(velmar::excel::Workbook& book, const std::string& sheet,
              const std::vector<std::string>& columns, const std::vector<Row>& rows = {});
  void Append(velmar::excel::Workbook& book, const std::vector<Row>& rows);

  /// What xlrd finds otherwise, cell by cell with its type; empty if it reads exactly these cells.
  std::string Differs(const std::string& path) const;
};
