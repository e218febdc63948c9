#pragma once

#include <string>

/// Walks a whole workbook file by the published formats, on code of its own: header, FAT, DIFAT, directory,
/// every chain, every record, every string, every cell.
struct WorkbookCheck {
  /// The first thing that is wrong; empty if all is well.
  static std::string Problem(const std::string& path);
};
