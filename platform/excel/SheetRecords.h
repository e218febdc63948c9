#pragma once

#include <cstdint>

#include "platform/excel/ByteWriter.h"

namespace velmar::excel {

/// The records around the cells of a sheet ([MS-XLS] 2.1.7.20.5).
struct SheetRecords {
  static constexpr std::uint16_t kGlobals = 0x05;
  static constexpr std::uint16_t kWorksheet = 0x10;
  /// Where, in the bytes of WriteBegin, the number of the sheet's rows stands (u32).
  static constexpr std::uint32_t kRowsPlace = 28;

  static void WriteBof(ByteWriter& out, std::uint16_t kind);
  /// BOF and DIMENSIONS, the rows still 0.
  static void WriteBegin(ByteWriter& out, std::uint16_t columns);
  /// WINDOW2 and EOF. The workbook's first sheet is the one that is shown.
  static void WriteEnd(ByteWriter& out, bool shown);
};

}  // namespace velmar::excel
