#include "platform/excel/WorkbookStore.h"

#include <algorithm>
#include <utility>

#include "platform/excel/ByteReader.h"
#include "platform/excel/DamagedFile.h"
#include "platform/excel/Digest.h"
#include "platform/excel/FileTransaction.h"
#include "platform/excel/Record.h"
#include "platform/excel/SectorImages.h"
#include "platform/excel/SheetRecords.h"
#include "platform/excel/WorkbookErrors.h"

namespace velmar::excel {

namespace {

constexpr std::uint32_t kSector = CompoundFile::kSector;
constexpr std::uint64_t kLongestFile = 0x7FFFFFFF;

std::vector<std::uint8_t> ReadSectors(File& file, std::uint32_t first, std::uint32_t count) {
  if (std::uint64_t{first} + count > kLongestFile / kSector) throw DamagedFile();
  // A count that goes beyond the file's end fails in reading, and must not take the memory first.
  std::vector<std::uint8_t> bytes(std::min(std::uint64_t{count} * kSector, file.Size()));
  file.Read(CompoundFile::Offset(first), bytes);
  return bytes;
}

std::uint32_t SectorsOf(std::size_t bytes) {
  return static_cast<std::uint32_t>((bytes + kSector - 1) / kSector);
}

std::uint64_t DigestOf(std::span<const std::uint8_t> header, std::span<const std::uint8_t> directory,
                       std::span<const std::uint8_t> head) {
  return Digest(head, Digest(directory, Digest(header)));
}

}  // namespace

WorkbookStore::WorkbookStore(std::string path, FileLayer& layer, Purpose purpose, Missing missing)
    : path_(std::move(path)), layer_(layer) {
  if (!layer_.Exists(path_)) {
    if (missing == Missing::kRefuse) throw WorkbookErrors::NoFile(path_);
    isNew_ = true;
    return;
  }
  const auto file = purpose == Purpose::kRead ? layer_.OpenForReading(path_) : layer_.OpenForWriting(path_);
  try {
    image_ = ReadImage(*file);
    state_ = WorkbookState::Decode(image_.stateBytes);
    if (file->Size() < CompoundFile::Offset(state_.sectorCount)) throw WorkbookErrors::Truncated(path_);
    if (image_.header.directorySector >= state_.sectorCount ||
        image_.directory.stateStart + image_.directory.stateSize / kSector > state_.sectorCount)
      throw DamagedFile();
    const auto head = ReadSectors(*file, state_.headStart, state_.headSectors);
    if (state_.digest != DigestOf(image_.headerBytes, image_.directoryBytes, head) ||
        image_.directory.workbookStart != state_.headStart || image_.directory.workbookSize != StreamSize())
      throw DamagedFile();
    stringTail_ = ReadTail(*file, state_.stringArea);
    sheetTail_ = ReadTail(*file, state_.sheetArea);
  } catch (const DamagedFile&) {
    throw WorkbookErrors::SavedElsewhere(path_);
  }
  Count(*file);
}

WorkbookStore::Image WorkbookStore::ReadImage(File& file) const {
  Image image;
  const std::uint64_t size = file.Size();
  image.headerBytes.resize(std::min<std::uint64_t>(size, kSector));
  file.Read(0, image.headerBytes);
  if (!CompoundFile::Header::HasSignature(image.headerBytes)) throw WorkbookErrors::NotAWorkbook(path_);
  if (size < kSector) throw WorkbookErrors::Truncated(path_);
  image.header = CompoundFile::Header::Decode(image.headerBytes);
  image.directoryBytes = ReadSectors(file, image.header.directorySector, 1);
  image.directory = CompoundFile::Directory::Decode(image.directoryBytes);
  if (image.directory.stateSize > size || image.directory.stateSize % kSector != 0) throw DamagedFile();
  image.stateBytes = ReadSectors(file, image.directory.stateStart, image.directory.stateSize / kSector);
  return image;
}

std::vector<std::uint8_t> WorkbookStore::ReadTail(File& file, const StreamArea& area) const {
  const std::uint32_t before = area.tailOffset % kSector;
  if (before == 0) return {};
  std::vector<std::uint8_t> bytes = ReadSectors(file, area.At(area.TailPosition()), 1);
  bytes.resize(before);
  if (Digest(bytes) != area.tailDigest) throw DamagedFile();
  return bytes;
}

void WorkbookStore::CheckUnchanged(File& file) const {
  bool same = false;
  try {
    const Image now = ReadImage(file);
    same = now.headerBytes == image_.headerBytes && now.directoryBytes == image_.directoryBytes &&
           now.stateBytes == image_.stateBytes && file.Size() >= CompoundFile::Offset(state_.sectorCount);
  } catch (const DamagedFile&) {
  }
  if (!same) throw WorkbookErrors::ChangedMeanwhile(path_);
}

void WorkbookStore::Count(const File& file) {
  const IoCounts& more = file.Counts();
  counts_.reads += more.reads;
  counts_.bytesRead += more.bytesRead;
  counts_.writes += more.writes;
  counts_.bytesWritten += more.bytesWritten;
}

std::uint32_t WorkbookStore::StreamSize() const {
  constexpr std::uint32_t kSheetEnd = 2 * Record::kHead + 18;
  return (state_.headSectors + state_.stringArea.sectors) * kSector + state_.sheetArea.tailOffset + kSheetEnd;
}

void WorkbookStore::AddSheet(std::string_view name, const std::vector<std::string>& columns) {
  auto& lists = state_.columnLists;
  auto list = std::find(lists.begin(), lists.end(), columns);
  if (list == lists.end()) list = lists.insert(list, columns);
  state_.sheets.push_back({std::string(name), 0});
  state_.sheetColumns.push_back(static_cast<std::uint32_t>(list - lists.begin()));
  state_.sheetRows.push_back(0);
}

void WorkbookStore::SetSheetPlace(std::size_t place) {
  state_.sheets.back().offset = state_.sheetArea.TailPosition() * kSector + static_cast<std::uint32_t>(place);
}

void WorkbookStore::AppendStrings(const Statement& statement, SectorMap& map, SectorImages& images) {
  StreamArea& area = state_.stringArea;
  if (statement.strings.Count() == 0 && area.sectors > 0) return;
  const std::size_t filler = statement.strings.Finish();
  const auto records = statement.strings.Records();
  const std::uint32_t count = SectorsOf(records.size());
  const std::uint32_t tailStart = area.TailPosition() * kSector;
  const std::uint32_t first = map.Take(count, SectorMap::Fit::kSnug);
  images.Show(first, records);
  area.ReplaceTail(map, first, count);
  area.SetTail(tailStart + static_cast<std::uint32_t>(filler),
               Digest(records.subspan(filler / kSector * kSector, filler % kSector)), {});
  state_.strings += statement.strings.Count();
  state_.fillers = statement.strings.FillerCount();
}

std::set<std::uint32_t> WorkbookStore::PatchRows(const Statement& statement, SectorMap& map,
                                                 SectorImages& images, File* file) {
  const StreamArea& area = state_.sheetArea;
  const std::uint32_t tailStart = area.TailPosition() * kSector;
  const std::uint32_t place = state_.sheets.back().offset + SheetRecords::kRowsPlace;
  std::set<std::uint32_t> positions;
  std::map<std::uint32_t, ByteWriter> copies;
  for (std::uint32_t i = 0; i < 4; ++i) {
    const std::uint32_t offset = place + i;
    const auto value = static_cast<std::uint8_t>(statement.rows >> 8 * i);
    positions.insert(offset / kSector);
    // A file that is only being made has all its records there.
    if (file == nullptr || offset >= tailStart) {
      statement.sheetRecords.Patch8(offset - tailStart, value);
      continue;
    }
    ByteWriter& copy = copies[offset / kSector];
    if (copy.Size() == 0) copy.Bytes(ReadSectors(*file, area.At(offset / kSector), 1));
    copy.Patch8(offset % kSector, value);
  }
  for (auto& [position, copy] : copies) {
    const std::uint32_t sector = map.Take(1, SectorMap::Fit::kRoomy);
    state_.sheetArea.Replace(map, position, sector);
    images.Keep(sector, std::move(copy));
  }
  return positions;
}

void WorkbookStore::AppendSheetRecords(const Statement& statement, SectorMap& map, SectorImages& images,
                                       File* file) {
  StreamArea& area = state_.sheetArea;
  const std::set<std::uint32_t> positions = PatchRows(statement, map, images, file);
  const std::uint32_t tailStart = area.TailPosition() * kSector;
  statement.sheetRecords.PadTo(kSector);
  const auto records = std::as_const(statement.sheetRecords).Content();
  const std::uint32_t count = SectorsOf(records.size());
  const std::uint32_t first = map.Take(count, SectorMap::Fit::kSnug);
  images.Show(first, records);
  area.ReplaceTail(map, first, count);
  const std::size_t end = statement.endPlace;
  area.SetTail(tailStart + static_cast<std::uint32_t>(end),
               Digest(records.subspan(end / kSector * kSector, end % kSector)), positions);
}

ByteWriter WorkbookStore::Plan(const Statement& statement, SectorMap& map, SectorImages& images, File* file) {
  state_.textCells += statement.textCells;
  state_.sheetRows.back() = statement.rows;
  AppendStrings(statement, map, images);
  AppendSheetRecords(statement, map, images, file);

  if (!isNew_) {
    map.Release(state_.headStart, state_.headSectors);
    map.Release(image_.header.directorySector);
    map.Release(image_.directory.stateStart, image_.directory.stateSize / kSector);
  }
  ByteWriter head = WorkbookHead::Build(state_.sheets, state_.stringArea.sectors * kSector, state_.textCells,
                                        state_.strings + state_.fillers);
  state_.headSectors = SectorsOf(head.Size());
  state_.headStart = map.Take(state_.headSectors, SectorMap::Fit::kRoomy);
  map.SetNext(state_.headStart + state_.headSectors - 1, state_.stringArea.First());
  map.SetNext(state_.stringArea.Last(), state_.sheetArea.First());
  map.SetNext(state_.sheetArea.Last(), CompoundFile::kEnd);

  // A statement needs some thirty free sectors and a gap for the DIFAT; others may be forgotten.
  constexpr std::size_t kFreeSectors = 128;
  const std::size_t stateSize =
      std::max<std::size_t>(CompoundFile::kLeastStream,
                            state_.EncodedSize(kFreeSectors + std::size_t{2} * image_.header.difatSectors));
  CompoundFile::Header header;
  CompoundFile::Directory directory;
  header.directorySector = map.Take(1, SectorMap::Fit::kRoomy);
  directory.workbookStart = state_.headStart;
  directory.workbookSize = StreamSize();
  directory.stateSize = SectorsOf(stateSize) * kSector;
  directory.stateStart = map.Take(SectorsOf(stateSize), SectorMap::Fit::kRoomy);
  map.Seal();
  map.Describe(header);
  map.AddImages(images);

  ByteWriter headerBytes = header.Encode();
  ByteWriter directoryBytes = directory.Encode();
  state_.digest = DigestOf(headerBytes.Content(), directoryBytes.Content(), head.Content());
  state_.sectorCount = map.SectorCount();
  state_.freeSectors = map.FreeSectors();
  images.Keep(directory.stateStart, state_.Encode(directory.stateSize));
  images.Keep(header.directorySector, std::move(directoryBytes));
  images.Keep(state_.headStart, std::move(head));
  if (CompoundFile::Offset(map.SectorCount()) > kLongestFile) throw WorkbookErrors::FileTooLong(path_);
  return headerBytes;
}

void WorkbookStore::Append(const Statement& statement) {
  const auto file = isNew_ ? layer_.Create(path_) : layer_.OpenForWriting(path_);
  if (!isNew_) {
    file->Lock();
    CheckUnchanged(*file);
  }
  SectorImages images;
  ByteWriter header;
  const std::uint64_t oldSize = isNew_ ? 0 : CompoundFile::Offset(state_.sectorCount);
  try {
    SectorMap map =
        isNew_ ? SectorMap() : SectorMap(image_.header, *file, state_.sectorCount, state_.freeSectors);
    header = Plan(statement, map, images, isNew_ ? nullptr : file.get());
  } catch (const DamagedFile&) {
    throw WorkbookErrors::SavedElsewhere(path_);
  }
  // What an interrupted statement may have left behind the end.
  if (file->Size() > oldSize) file->Resize(oldSize);
  FileTransaction transaction(*file, oldSize);
  images.Write(
      [&](std::uint64_t offset, std::span<const std::uint8_t> bytes) { transaction.Write(offset, bytes); });
  const std::uint64_t size = CompoundFile::Offset(state_.sectorCount);
  if (file->Size() < size) file->Resize(size);
  // The moment of truth: before this write the file is the old workbook, after it the new one.
  transaction.Write(0, header.Content());
  if (isNew_) file->Publish();
  transaction.Keep();
  Count(*file);
}

}  // namespace velmar::excel
