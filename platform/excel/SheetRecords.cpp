#include "platform/excel/SheetRecords.h"

#include "platform/excel/Record.h"

namespace velmar::excel {

void SheetRecords::WriteBof(ByteWriter& out, std::uint16_t kind) {
  out.Record(Record::kBof, 16);
  out.U16(0x600);
  out.U16(kind);
  out.U16(0x0DBB);
  out.U16(0x07CC);
  out.U32(0x41);
  out.U32(6);
}

void SheetRecords::WriteBegin(ByteWriter& out, std::uint16_t columns) {
  WriteBof(out, kWorksheet);
  out.Record(Record::kDimensions, 14);
  out.U32(0);
  out.U32(0);
  out.U16(0);
  out.U16(columns);
  out.U16(0);
}

void SheetRecords::WriteEnd(ByteWriter& out, bool shown) {
  out.Record(Record::kWindow2, 18);
  out.U16(shown ? 0x6B6 : 0xB6);
  out.U32(0);
  out.U32(0x40);
  out.U64(0);
  out.Record(Record::kEof, 0);
}

}  // namespace velmar::excel
