#include "platform/excel/WorkbookState.h"

#include <algorithm>
#include <string_view>

#include "platform/excel/ByteReader.h"
#include "platform/excel/Digest.h"
#include "platform/excel/SheetRecords.h"

namespace velmar::excel {

namespace {

constexpr std::string_view kMark = "VLMXLS01";
constexpr std::size_t kDigest = 8;

void WriteText(ByteWriter& out, std::string_view text) {
  out.U32(static_cast<std::uint32_t>(text.size()));
  for (const char c : text) out.U8(static_cast<std::uint8_t>(c));
}

std::string ReadText(ByteReader& in) {
  const auto bytes = in.Bytes(in.U32());
  return {bytes.begin(), bytes.end()};
}

// How many items follow; each takes four bytes at least.
std::uint32_t ReadCount(ByteReader& in) {
  const std::uint32_t count = in.U32();
  if (count > in.Left() / 4) throw DamagedFile();
  return count;
}

void WriteArea(ByteWriter& out, const StreamArea& area) {
  out.U32(area.sectors);
  out.U32(area.tailOffset);
  out.U64(area.tailDigest);
  out.U32(static_cast<std::uint32_t>(area.known.size()));
  for (const auto& [position, sector] : area.known) {
    out.U32(position);
    out.U32(sector);
  }
}

StreamArea ReadArea(ByteReader& in) {
  StreamArea area;
  area.sectors = in.U32();
  area.tailOffset = in.U32();
  area.tailDigest = in.U64();
  for (std::uint32_t left = ReadCount(in); left > 0; --left) {
    const std::uint32_t position = in.U32();
    area.known[position] = in.U32();
  }
  return area;
}

void WriteFixed(ByteWriter& out, const WorkbookState& state) {
  for (const char c : kMark) out.U8(static_cast<std::uint8_t>(c));
  out.U64(state.digest);
  for (const std::uint32_t value :
       {state.sectorCount, state.headStart, state.headSectors, state.textCells, state.strings, state.fillers})
    out.U32(value);
  WriteArea(out, state.stringArea);
  WriteArea(out, state.sheetArea);
  out.U32(static_cast<std::uint32_t>(state.columnLists.size()));
  for (const auto& columns : state.columnLists) {
    out.U32(static_cast<std::uint32_t>(columns.size()));
    for (const std::string& column : columns) WriteText(out, column);
  }
  out.U32(static_cast<std::uint32_t>(state.sheets.size()));
  for (std::size_t i = 0; i < state.sheets.size(); ++i) {
    WriteText(out, state.sheets[i].name);
    out.U32(state.sheets[i].offset);
    out.U32(state.sheetColumns[i]);
    out.U32(state.sheetRows[i]);
  }
}

void CheckArea(const StreamArea& area, std::uint32_t sectorCount) {
  if (area.sectors > sectorCount || area.TailPosition() >= area.sectors) throw DamagedFile();
  for (const auto& [position, sector] : area.known)
    if (position >= area.sectors || sector >= sectorCount) throw DamagedFile();
}

// All places lie within the file, and those that a statement will change within its last sheet.
void CheckPlaces(const WorkbookState& state) {
  if (state.headStart > state.sectorCount || state.headSectors == 0 ||
      state.headSectors > state.sectorCount - state.headStart)
    throw DamagedFile();
  CheckArea(state.stringArea, state.sectorCount);
  CheckArea(state.sheetArea, state.sectorCount);
  const std::uint64_t rowsEnd = std::uint64_t{state.sheets.back().offset} + SheetRecords::kRowsPlace + 4;
  if (rowsEnd > state.sheetArea.tailOffset) throw DamagedFile();
  const auto isNone = [](std::uint32_t rows) { return rows == 0 || rows > 0x10000; };
  if (std::any_of(state.sheetRows.begin(), state.sheetRows.end(), isNone)) throw DamagedFile();
}

}  // namespace

std::size_t WorkbookState::EncodedSize(std::size_t freeCount) const {
  ByteWriter out;
  WriteFixed(out, *this);
  return out.Size() + 4 + 4 * freeCount + kDigest;
}

ByteWriter WorkbookState::Encode(std::size_t size) const {
  ByteWriter out;
  WriteFixed(out, *this);
  const std::size_t room = (size - out.Size() - 4 - kDigest) / 4;
  const std::size_t count = std::min(room, freeSectors.size());
  out.U32(static_cast<std::uint32_t>(count));
  for (std::size_t i = 0; i < count; ++i) out.U32(freeSectors[i]);
  out.Fill(size - kDigest - out.Size(), 0);
  out.U64(Digest(out.Content()));
  return out;
}

WorkbookState WorkbookState::Decode(std::span<const std::uint8_t> bytes) {
  if (bytes.size() < kMark.size() + kDigest) throw DamagedFile();
  const auto content = bytes.first(bytes.size() - kDigest);
  if (ByteReader(bytes.last(kDigest)).U64() != Digest(content)) throw DamagedFile();
  ByteReader in(content);
  const auto mark = in.Bytes(kMark.size());
  if (!std::equal(mark.begin(), mark.end(), kMark.begin())) throw DamagedFile();
  WorkbookState state;
  state.digest = in.U64();
  for (std::uint32_t* value : {&state.sectorCount, &state.headStart, &state.headSectors, &state.textCells,
                               &state.strings, &state.fillers})
    *value = in.U32();
  state.stringArea = ReadArea(in);
  state.sheetArea = ReadArea(in);
  state.columnLists.resize(ReadCount(in));
  for (auto& columns : state.columnLists) {
    columns.resize(ReadCount(in));
    for (std::string& column : columns) column = ReadText(in);
  }
  const std::uint32_t sheets = ReadCount(in);
  for (std::uint32_t i = 0; i < sheets; ++i) {
    WorkbookHead::Sheet sheet{ReadText(in), in.U32()};
    state.sheets.push_back(std::move(sheet));
    state.sheetColumns.push_back(in.U32());
    if (state.sheetColumns.back() >= state.columnLists.size()) throw DamagedFile();
    state.sheetRows.push_back(in.U32());
  }
  if (sheets == 0) throw DamagedFile();
  state.freeSectors.resize(ReadCount(in));
  for (std::uint32_t& sector : state.freeSectors) sector = in.U32();
  CheckPlaces(state);
  return state;
}

}  // namespace velmar::excel
