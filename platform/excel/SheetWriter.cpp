#include "platform/excel/SheetWriter.h"

#include <bit>
#include <cmath>
#include <utility>

#include "platform/excel/BiffString.h"
#include "platform/excel/Record.h"
#include "platform/excel/RkNumber.h"
#include "platform/excel/SheetRecords.h"
#include "platform/excel/WorkbookErrors.h"

namespace velmar::excel {

namespace {

constexpr std::uint32_t kMostRows = 65'536;
constexpr std::size_t kMostBytes = 0x7FFFFFFF;
constexpr std::size_t kCellPlace = 6;  // row, column, format

}  // namespace

SheetWriter::SheetWriter(std::unique_ptr<WorkbookStore> store, std::size_t columnCount)
    : store_(std::move(store)),
      columnCount_(columnCount),
      strings_(store_->State().strings, store_->StringTail()) {
  const WorkbookState& state = store_->State();
  rows_.Bytes(store_->SheetTail());
  row_ = state.sheetRows.back();
  if (row_ > 0) return;
  // The statement begins where the sheet before ends, and ends it once more.
  if (state.sheets.size() > 1) SheetRecords::WriteEnd(rows_, state.sheets.size() == 2);
  store_->SetSheetPlace(rows_.Size());
  SheetRecords::WriteBegin(rows_, static_cast<std::uint16_t>(columnCount_));
  for (const std::string& column : state.Columns(state.sheets.size() - 1)) AddText(column);
  EndRow();
  rowCount_ = 0;
}

void SheetWriter::RequireRoom() {
  if (done_) throw WorkbookErrors::WriterDone(store_->Path());
  if (column_ >= columnCount_)
    throw WorkbookErrors::CellCount(store_->Path(), store_->LastSheet(), columnCount_);
  if (row_ >= kMostRows) throw WorkbookErrors::TooManyRows(store_->Path(), store_->LastSheet());
}

std::uint8_t* SheetWriter::NextCell(std::uint16_t record, std::uint16_t format, std::size_t payload) {
  std::uint8_t* place = rows_.Extend(Record::kHead + kCellPlace + payload);
  ByteWriter::Store16(place, record);
  ByteWriter::Store16(place + 2, static_cast<std::uint16_t>(kCellPlace + payload));
  ByteWriter::Store16(place + 4, static_cast<std::uint16_t>(row_));
  ByteWriter::Store16(place + 6, static_cast<std::uint16_t>(column_));
  ByteWriter::Store16(place + 8, format);
  ++column_;
  return place + Record::kHead + kCellPlace;
}

void SheetWriter::AddNull() {
  RequireRoom();
  ++column_;
}

void SheetWriter::AddNumber(double value) {
  if (!std::isfinite(value)) return AddNull();
  RequireRoom();
  if (const auto code = RkNumber::Encode(value)) {
    ByteWriter::Store32(NextCell(Record::kRk, Record::kGeneralFormat, 4), *code);
    return;
  }
  const std::uint64_t bits = std::bit_cast<std::uint64_t>(value);
  std::uint8_t* place = NextCell(Record::kNumber, Record::kGeneralFormat, 8);
  ByteWriter::Store32(place, static_cast<std::uint32_t>(bits));
  ByteWriter::Store32(place + 4, static_cast<std::uint32_t>(bits >> 32));
}

void SheetWriter::AddBoolean(bool value) {
  RequireRoom();
  ByteWriter::Store16(NextCell(Record::kBoolErr, Record::kGeneralFormat, 2), value ? 1 : 0);
}

void SheetWriter::AddText(std::string_view utf8) {
  RequireRoom();
  if (utf8.size() > BiffString::kLongest) {
    BiffString text;
    text.Assign(utf8);
    if (text.Length() > BiffString::kLongest)
      throw WorkbookErrors::TextTooLong(store_->Path(), store_->LastSheet(), row_ + 1,
                                        store_->State().Columns(store_->State().sheets.size() - 1)[column_]);
  }
  const std::uint32_t index = strings_.Index(utf8);
  if (index == SharedStrings::kNone) {
    ++column_;
    return;
  }
  ++textCells_;
  ByteWriter::Store32(NextCell(Record::kLabelSst, Record::kTextFormat, 4), index);
}

void SheetWriter::EndRow() {
  if (done_) throw WorkbookErrors::WriterDone(store_->Path());
  if (column_ != columnCount_)
    throw WorkbookErrors::CellCount(store_->Path(), store_->LastSheet(), columnCount_);
  if (rows_.Size() + strings_.Size() > kMostBytes) throw WorkbookErrors::FileTooLong(store_->Path());
  column_ = 0;
  ++row_;
  ++rowCount_;
}

void SheetWriter::Commit() {
  if (done_) throw WorkbookErrors::WriterDone(store_->Path());
  if (column_ != 0) throw WorkbookErrors::CellCount(store_->Path(), store_->LastSheet(), columnCount_);
  done_ = true;
  const std::size_t endPlace = rows_.Size();
  SheetRecords::WriteEnd(rows_, store_->State().sheets.size() == 1);
  store_->Append({rows_, endPlace, strings_, textCells_, row_});
}

}  // namespace velmar::excel
