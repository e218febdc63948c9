#include "platform/excel/WorkbookHead.h"

#include <algorithm>
#include <array>

#include "platform/excel/BiffString.h"
#include "platform/excel/CompoundFile.h"
#include "platform/excel/Record.h"
#include "platform/excel/SheetRecords.h"

namespace velmar::excel {

namespace {

struct Setting {
  std::uint16_t id;
  std::uint16_t value;
};

constexpr std::uint16_t kFont = 0x31;
constexpr std::uint16_t kXf = 0xE0;
constexpr std::uint16_t kTextNumberFormat = 49;
constexpr std::uint16_t kSpain = 34;
constexpr std::uint16_t kUnicode = 0x4B0;

void WriteSettings(ByteWriter& out, std::initializer_list<Setting> settings) {
  for (const Setting& setting : settings) {
    out.Record(setting.id, 2);
    out.U16(setting.value);
  }
}

void WriteUser(ByteWriter& out) {
  constexpr std::size_t kLength = 112;
  constexpr std::string_view kUser = "VelmarExportacion";
  out.Record(0x5C, kLength);
  out.U16(static_cast<std::uint16_t>(kUser.size()));
  out.U8(0);
  for (const char c : kUser) out.U8(static_cast<std::uint8_t>(c));
  out.Fill(kLength - 3 - kUser.size(), ' ');
}

void WriteWindow(ByteWriter& out) {
  out.Record(0x3D, 18);
  for (const std::uint16_t value : std::to_array<std::uint16_t>({360, 270, 14940, 9150, 0x38, 0, 0, 1, 600}))
    out.U16(value);
}

void WriteFont(ByteWriter& out) {
  BiffString name;
  name.Assign("Arial");
  out.Record(kFont, 16 + name.Length());
  for (const std::uint16_t value : std::to_array<std::uint16_t>({200, 0, 0x7FFF, 400, 0, 0, 0}))
    out.U16(value);
  name.WriteShort(out);
}

void WriteFormat(ByteWriter& out, std::uint16_t numberFormat, bool style) {
  out.Record(kXf, 20);
  out.U16(0);
  out.U16(numberFormat);
  out.U16(style ? 0xFFF5 : 1);
  out.U8(0x20);
  out.U16(0);
  out.U8(style ? 0xF4 : 0);
  out.U64(0);
  out.U16(0x20C0);
}

}  // namespace

ByteWriter WorkbookHead::Build(const std::vector<Sheet>& sheets, std::uint32_t stringBytes,
                               std::uint32_t textCells, std::uint32_t strings) {
  ByteWriter out;
  SheetRecords::WriteBof(out, SheetRecords::kGlobals);
  WriteSettings(out, {{0xE1, kUnicode}, {0xC1, 0}});
  out.Record(0xE2, 0);
  WriteUser(out);
  WriteSettings(
      out,
      {{0x42, kUnicode}, {0x161, 0}, {0x9C, 14}, {0x19, 0}, {0x12, 0}, {0x13, 0}, {0x1AF, 0}, {0x1BC, 0}});
  WriteWindow(out);
  WriteSettings(out, {{0x40, 0}, {0x8D, 0}, {0x22, 0}, {0x0E, 1}, {0x1B7, 0}, {0xDA, 0}});
  for (int i = 0; i < 4; ++i) WriteFont(out);
  for (int i = 0; i < 15; ++i) WriteFormat(out, 0, true);
  WriteFormat(out, 0, false);
  WriteFormat(out, kTextNumberFormat, false);
  out.Record(0x293, 4);
  out.U32(0xFF008000u);

  std::vector<std::size_t> places;
  for (const Sheet& sheet : sheets) {
    BiffString name;
    name.Assign(sheet.name);
    out.Record(Record::kBoundSheet, 8 + name.Length() * (name.Narrow() ? 1 : 2));
    places.push_back(out.Size());
    out.U32(0);
    out.U16(0);
    name.WriteShort(out);
  }
  out.Record(0x8C, 4);
  out.U16(kSpain);
  out.U16(kSpain);

  constexpr std::size_t kTableHead = 8 + 3;
  const std::size_t least = out.Size() + Record::kHead + kTableHead + 1;
  const std::size_t full = std::max<std::size_t>(
      CompoundFile::kLeastStream, (least + Record::kSector - 1) / Record::kSector * Record::kSector);
  const std::size_t blanks = full - least + 1;
  out.Record(Record::kSst, kTableHead + blanks);
  out.U32(textCells);
  out.U32(strings);
  out.U16(static_cast<std::uint16_t>(blanks));
  out.U8(0);
  out.Fill(blanks, ' ');

  for (std::size_t i = 0; i < sheets.size(); ++i)
    out.Patch32(places[i], static_cast<std::uint32_t>(full) + stringBytes + sheets[i].offset);
  return out;
}

}  // namespace velmar::excel
