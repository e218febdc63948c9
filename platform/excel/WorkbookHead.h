#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "platform/excel/ByteWriter.h"

namespace velmar::excel {

/// The globals of a workbook up to the beginning of its string table, in whole sectors ([MS-XLS] 2.1.7.20.3).
/// The string table's own record holds one string of blanks, number 0, which fills the last sector; all real
/// strings follow in CONTINUE records. So everything in the globals that changes with a statement stands
/// here.
class WorkbookHead {
 public:
  struct Sheet {
    std::string name;
    /// Of its first record, counted from the beginning of the area of sheets.
    std::uint32_t offset = 0;
  };

  /// stringBytes: the size of the CONTINUE records and the EOF between this head and the first sheet.
  /// strings: all strings of the table, number 0 included. textCells: the cells that refer to one.
  static ByteWriter Build(const std::vector<Sheet>& sheets, std::uint32_t stringBytes,
                          std::uint32_t textCells, std::uint32_t strings);
};

}  // namespace velmar::excel
