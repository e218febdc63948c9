#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <string>
#include <string_view>

#include "platform/excel/ByteWriter.h"
#include "platform/excel/FileLayer.h"
#include "platform/excel/IoCounts.h"
#include "platform/excel/SharedStrings.h"
#include "platform/excel/WorkbookStore.h"

namespace velmar::excel {

/// The rows of one statement on a workbook. They are held in memory in the form in which they will stand in
/// the file; nothing on disk changes before Commit, and a writer that is destroyed without it leaves no
/// trace.
///
/// A failure of any method leaves the file as it was; the writer is then of no further use.
class SheetWriter {
 public:
  /// For Workbook: the store has been opened, and the caller has checked names and counts. A new sheet gets
  /// the header row at once.
  SheetWriter(std::unique_ptr<WorkbookStore> store, std::size_t columnCount);
  SheetWriter(const SheetWriter&) = delete;
  SheetWriter& operator=(const SheetWriter&) = delete;

  /// An empty cell.
  void AddNull();
  /// A number; a NaN or an infinity, which the format does not know, gives an empty cell.
  void AddNumber(double value);
  void AddBoolean(bool value);
  /// A text cell, whatever the text looks like; an empty text gives an empty cell. At most 32,767 UTF-16
  /// units. What is not UTF-8 becomes U+FFFD, U+0000 is left out.
  void AddText(std::string_view utf8);
  /// Ends the row, which must have as many cells as the statement has columns.
  void EndRow();

  /// Writes the statement, all or nothing: afterwards the file is a complete workbook with the new rows; on
  /// failure it is what it was. Once only.
  void Commit();

  /// Rows ended so far, without the header row.
  std::size_t RowCount() const { return rowCount_; }
  /// What this statement has read and written so far.
  const IoCounts& Counts() const { return store_->Counts(); }

 private:
  std::uint8_t* NextCell(std::uint16_t record, std::uint16_t format, std::size_t payload);
  void RequireRoom();

  std::unique_ptr<WorkbookStore> store_;
  std::size_t columnCount_;
  ByteWriter rows_;
  SharedStrings strings_;
  std::uint32_t row_ = 0;
  std::uint32_t column_ = 0;
  std::uint32_t textCells_ = 0;
  std::size_t rowCount_ = 0;
  bool done_ = false;
};

}  // namespace velmar::excel
