#include "platform/excel/CompoundFile.h"

#include <algorithm>
#include <cstring>
#include <string_view>

#include "platform/excel/ByteReader.h"

namespace velmar::excel {

namespace {

constexpr std::array<std::uint8_t, 8> kSignature = {0xD0, 0xCF, 0x11, 0xE0, 0xA1, 0xB1, 0x1A, 0xE1};
constexpr std::array<std::uint8_t, 16> kWorkbookClass = {0x20, 0x08, 0x02, 0x00, 0x00, 0x00, 0x00, 0x00,
                                                         0xC0, 0x00, 0x00, 0x00, 0x00, 0x00, 0x00, 0x46};
constexpr std::uint32_t kNoEntry = 0xFFFFFFFFu;
constexpr std::size_t kEntry = 128;
constexpr std::size_t kStartInEntry = 116;

enum EntryType : std::uint8_t { kUnused = 0, kStream = 2, kRoot = 5 };
enum EntryColour : std::uint8_t { kRed = 0, kBlack = 1 };

struct Entry {
  std::string_view name;
  EntryType type = kUnused;
  EntryColour colour = kRed;
  std::uint32_t right = kNoEntry;
  std::uint32_t child = kNoEntry;
  std::uint32_t start = 0;
  std::uint32_t size = 0;
};

void WriteEntry(ByteWriter& out, const Entry& entry) {
  const std::size_t begin = out.Size();
  for (const char c : entry.name) out.U16(static_cast<std::uint8_t>(c));
  out.Fill(begin + 64 - out.Size(), 0);
  out.U16(entry.name.empty() ? 0 : static_cast<std::uint16_t>(2 * (entry.name.size() + 1)));
  out.U8(entry.type);
  out.U8(entry.colour);
  out.U32(kNoEntry);
  out.U32(entry.right);
  out.U32(entry.child);
  if (entry.type == kRoot)
    out.Bytes(kWorkbookClass);
  else
    out.Fill(kWorkbookClass.size(), 0);
  out.Fill(20, 0);
  out.U32(entry.start);
  out.U64(entry.size);
}

}  // namespace

ByteWriter CompoundFile::Header::Encode() const {
  ByteWriter out;
  out.Bytes(kSignature);
  out.Fill(16, 0);
  for (const std::uint16_t value : std::to_array<std::uint16_t>({0x3E, 3, 0xFFFE, 9, 6})) out.U16(value);
  out.Fill(6, 0);
  out.U32(0);
  out.U32(fatSectors);
  out.U32(directorySector);
  out.U32(0);
  out.U32(kLeastStream);
  out.U32(kEnd);
  out.U32(0);
  out.U32(firstDifat);
  out.U32(difatSectors);
  for (const std::uint32_t sector : fat) out.U32(sector);
  return out;
}

bool CompoundFile::Header::HasSignature(std::span<const std::uint8_t> bytes) {
  return bytes.size() >= kSignature.size() && std::equal(kSignature.begin(), kSignature.end(), bytes.begin());
}

CompoundFile::Header CompoundFile::Header::Decode(std::span<const std::uint8_t> bytes) {
  Header header;
  ByteReader in(bytes);
  in.Bytes(44);
  header.fatSectors = in.U32();
  header.directorySector = in.U32();
  in.Bytes(16);
  header.firstDifat = in.U32();
  header.difatSectors = in.U32();
  for (std::uint32_t& sector : header.fat) sector = in.U32();
  const ByteWriter same = header.Encode();
  if (!std::equal(bytes.begin(), bytes.end(), same.Content().begin(), same.Content().end()))
    throw DamagedFile();
  return header;
}

ByteWriter CompoundFile::Directory::Encode() const {
  // A shorter name comes first in the order of siblings, so the state stands to the right of the workbook.
  ByteWriter out;
  WriteEntry(out, {.name = "Root Entry", .type = kRoot, .colour = kBlack, .child = 1, .start = kEnd});
  WriteEntry(out, {.name = "Workbook",
                   .type = kStream,
                   .colour = kBlack,
                   .right = 2,
                   .start = workbookStart,
                   .size = workbookSize});
  WriteEntry(out, {.name = "VelmarExportacion", .type = kStream, .start = stateStart, .size = stateSize});
  WriteEntry(out, {});
  return out;
}

CompoundFile::Directory CompoundFile::Directory::Decode(std::span<const std::uint8_t> bytes) {
  Directory directory;
  ByteReader in(bytes);
  in.Bytes(kEntry + kStartInEntry);
  directory.workbookStart = in.U32();
  directory.workbookSize = in.U32();
  in.Bytes(4 + kStartInEntry);
  directory.stateStart = in.U32();
  directory.stateSize = in.U32();
  const ByteWriter same = directory.Encode();
  if (!std::equal(bytes.begin(), bytes.end(), same.Content().begin(), same.Content().end()))
    throw DamagedFile();
  return directory;
}

}  // namespace velmar::excel
