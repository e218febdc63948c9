#pragma once

#include <string>
#include <string_view>

#include "platform/error/RuntimeError.h"

namespace velmar::excel {

/// The failures of this room as the office user reads them: what happened, in which file, what to do.
struct WorkbookErrors {
  /// A call of the operating system failed with this errno while doing what the (Spanish) verb phrase says.
  static RuntimeError System(int error, std::string_view doing, const std::string& path);
  static RuntimeError NoFile(const std::string& path);
  static RuntimeError NotAWorkbook(const std::string& path);
  static RuntimeError SavedElsewhere(const std::string& path);
  static RuntimeError Truncated(const std::string& path);
  static RuntimeError InUse(const std::string& path);
  static RuntimeError ChangedMeanwhile(const std::string& path);
  static RuntimeError SheetName(const std::string& path, std::string_view sheet, const std::string& problem);
  static RuntimeError SheetExists(const std::string& path, std::string_view sheet);
  static RuntimeError NoSheet(const std::string& path, std::string_view sheet);
  static RuntimeError NotTheLastSheet(const std::string& path, std::string_view sheet, std::string_view last);
  static RuntimeError ColumnCount(const std::string& path, std::string_view sheet, std::size_t count,
                                  std::size_t most);
  static RuntimeError TooManyRows(const std::string& path, std::string_view sheet);
  static RuntimeError TextTooLong(const std::string& path, std::string_view sheet, std::size_t row,
                                  const std::string& column);
  static RuntimeError FileTooLong(const std::string& path);
  /// A row of another number of cells than the statement has columns: the program's fault, not the user's.
  static RuntimeError CellCount(const std::string& path, std::string_view sheet, std::size_t columns);
  static RuntimeError WriterDone(const std::string& path);
};

}  // namespace velmar::excel
