#pragma once

#include <cstddef>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "platform/excel/FileLayer.h"
#include "platform/excel/SheetWriter.h"

namespace velmar::excel {

struct WorkbookState;

/// An "Excel 8.0" workbook under a path, written one statement at a time. Between statements nothing is kept
/// open and nothing is remembered: each call looks at the file as it is then.
///
/// Only files that this class made can be read or grown: they carry a second stream with the places that an
/// append needs. A workbook that another program has saved since has lost it and is refused.
///
/// Failures are RuntimeError, in Spanish, naming the file: 53 no such file, 61 disk full, 70 not permitted or
/// in use, 76 no such folder, 3010 sheet exists, 3078 no such sheet, 3163 text too long, 3274 not a workbook
/// that can be grown, 3434 a limit of the format.
class Workbook {
 public:
  /// Touches nothing. The layer must outlive the workbook and its writers.
  explicit Workbook(std::string path, FileLayer& layer = FileLayer::Native());

  /// Starts a statement that creates the sheet, and the file if there is none, with a header row of the
  /// columns' names (1 to 256 of them). A sheet's name has 1 to 31 UTF-16 units, none of [ ] : * ? / \, no
  /// apostrophe at either end, and is unique regardless of case.
  std::unique_ptr<SheetWriter> CreateSheet(std::string_view sheet, const std::vector<std::string>& columns);

  /// Starts a statement that appends below the last row of the sheet, which must be the workbook's last one.
  /// Rows have columnCount cells, from the first column on: 1 to the number of the sheet's columns.
  std::unique_ptr<SheetWriter> AppendTo(std::string_view sheet, std::size_t columnCount);

  /// In the order of the workbook. No such file: error 53.
  std::vector<std::string> SheetNames() const;
  /// The header row of the sheet (its name regardless of case).
  std::vector<std::string> ColumnNames(std::string_view sheet) const;

  /// The rows of the sheet below its header row (its name regardless of case).
  std::size_t RowCount(std::string_view sheet) const;

  const std::string& Path() const { return path_; }

 private:
  std::size_t Require(const WorkbookState& state, std::string_view sheet) const;

  std::string path_;
  FileLayer& layer_;
};

}  // namespace velmar::excel
