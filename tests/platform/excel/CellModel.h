#pragma once

#include <cstddef>
#include <string>
#include <utility>
#include <variant>
#include <vector>

#include "platform/excel/Workbook.h"

/// What a workbook should hold, to write it and to compare what independent readers find in it.
struct CellModel {
  using Cell = std::variant<std::monostate, double, bool, std::string>;
  using Row = std::vector<Cell>;
  struct Sheet {
    std::string name;
    std::vector<Row> rows;  // the first one holds the columns' names
  };

  std::vector<Sheet> sheets;

  static void Add(velmar::excel::SheetWriter& writer, const Cell& cell);
  static void AddRow(velmar::excel::SheetWriter& writer, const Row& row);

  /// One committed statement each, on the workbook and here.
  void Create(velmar::excel::Workbook& book, const std::string& sheet,
              const std::vector<std::string>& columns, const std::vector<Row>& rows = {});
  void Append(velmar::excel::Workbook& book, const std::vector<Row>& rows);

  /// What the library freexl finds wrong; empty if it reads exactly these cells.
  std::string DiffersForFreexl(const std::string& path) const;
  /// The same with xlrd, cell by cell with its type.
  std::string DiffersForXlrd(const std::string& path) const;
};
