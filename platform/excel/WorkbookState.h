#pragma once

#include <cstdint>
#include <span>
#include <string>
#include <vector>

#include "platform/excel/ByteWriter.h"
#include "platform/excel/StreamArea.h"
#include "platform/excel/WorkbookHead.h"

namespace velmar::excel {

/// What a later statement must know of a workbook to append to it without reading it. It stands in a stream
/// of its own in the workbook's file, which other programs drop when they save: then it is gone, and rightly
/// so.
struct WorkbookState {
  std::uint32_t sectorCount = 0;
  std::uint32_t headStart = 0;
  std::uint32_t headSectors = 0;
  std::uint32_t textCells = 0;
  /// Strings of the table, number 0 included, a filler at its end not.
  std::uint32_t strings = 1;
  /// 1 if the string table ends with a filler, else 0.
  std::uint32_t fillers = 0;
  StreamArea stringArea;
  StreamArea sheetArea;
  std::vector<WorkbookHead::Sheet> sheets;
  /// For each sheet, which of the lists of columns it has.
  std::vector<std::uint32_t> sheetColumns;
  /// The rows of each sheet, the header row included; 0 while the statement that makes it is at work.
  std::vector<std::uint32_t> sheetRows;
  std::vector<std::vector<std::string>> columnLists;
  /// Of the file's header, directory and head.
  std::uint64_t digest = 0;
  /// The most useful ones first.
  std::vector<std::uint32_t> freeSectors;

  const std::vector<std::string>& Columns(std::size_t sheet) const {
    return columnLists[sheetColumns[sheet]];
  }

  /// The bytes that Encode needs for this many free sectors.
  std::size_t EncodedSize(std::size_t freeCount) const;
  /// Of exactly this size. The last free sectors are left out if there is no room for them: they stay unused.
  ByteWriter Encode(std::size_t size) const;
  /// DamagedFile if the bytes are not what Encode has written, or name places where no workbook has any.
  static WorkbookState Decode(std::span<const std::uint8_t> bytes);
};

}  // namespace velmar::excel
