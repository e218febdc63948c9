#include "platform/excel/SectorMap.h"

#include <algorithm>
#include <iterator>

#include "platform/excel/ByteReader.h"

namespace velmar::excel {

namespace {

constexpr std::uint32_t kUnplaced = CompoundFile::kFree;

std::uint32_t RoundUp(std::uint32_t value, std::uint32_t unit) {
  return (value + unit - 1) / unit;
}

}  // namespace

SectorMap::SectorMap(const CompoundFile::Header& header, File& file, std::uint32_t sectorCount,
                     const Places& free)
    : file_(&file), sectorCount_(sectorCount), free_(free.begin(), free.end()) {
  const std::uint32_t more = header.fatSectors - std::min(header.fatSectors, CompoundFile::kHeaderPlaces);
  if (header.fatSectors != RoundUp(sectorCount, kEntries) ||
      header.difatSectors != RoundUp(more, kPlacesInDifat) ||
      (!free.empty() && *free_.rbegin() >= sectorCount))
    throw DamagedFile();
  const auto inHeader = static_cast<std::ptrdiff_t>(header.fatSectors - more);
  places_.assign(header.fat.begin(), header.fat.begin() + inHeader);
  if (more > 0) LoadDifat(header);
  places_.resize(header.fatSectors);
  if (std::any_of(places_.begin(), places_.end(), [&](std::uint32_t place) { return place >= sectorCount; }))
    throw DamagedFile();
}

void SectorMap::LoadDifat(const CompoundFile::Header& header) {
  firstDifat_ = header.firstDifat;
  difatSectors_ = header.difatSectors;
  if (firstDifat_ >= sectorCount_ || difatSectors_ > sectorCount_ - firstDifat_) throw DamagedFile();
  std::vector<std::uint8_t> bytes(std::size_t{difatSectors_} * CompoundFile::kSector);
  file_->Read(CompoundFile::Offset(firstDifat_), bytes);
  ByteReader in(bytes);
  for (std::uint32_t j = 1; j <= difatSectors_; ++j) {
    for (std::uint32_t i = 0; i < kPlacesInDifat; ++i) places_.push_back(in.U32());
    if (in.U32() != (j == difatSectors_ ? CompoundFile::kEnd : firstDifat_ + j)) throw DamagedFile();
  }
}

SectorMap::Block& SectorMap::Load(std::uint32_t index) {
  const auto found = blocks_.find(index);
  if (found != blocks_.end()) return found->second;
  Block& block = blocks_[index];
  block.fill(CompoundFile::kFree);
  if (index >= places_.size()) {
    places_.resize(index + 1, kUnplaced);
  } else if (places_[index] != kUnplaced) {
    std::array<std::uint8_t, CompoundFile::kSector> bytes;
    file_->Read(CompoundFile::Offset(places_[index]), bytes);
    ByteReader in(bytes);
    for (std::uint32_t& entry : block) entry = in.U32();
  }
  return block;
}

std::uint32_t SectorMap::Next(std::uint32_t sector) {
  if (sector >= sectorCount_) throw DamagedFile();
  return Load(sector / kEntries)[sector % kEntries];
}

void SectorMap::SetNext(std::uint32_t sector, std::uint32_t next) {
  std::uint32_t& entry = Load(sector / kEntries)[sector % kEntries];
  if (entry == next) return;
  entry = next;
  changed_.insert(sector / kEntries);
}

std::vector<SectorMap::Gap> SectorMap::Gaps(const std::set<std::uint32_t>& sectors) {
  std::vector<Gap> gaps;
  for (const std::uint32_t sector : sectors) {
    if (gaps.empty() || sector != gaps.back().first + gaps.back().count) gaps.push_back({sector, 0});
    ++gaps.back().count;
  }
  std::stable_sort(gaps.begin(), gaps.end(), [](const Gap& l, const Gap& r) { return l.count > r.count; });
  return gaps;
}

const SectorMap::Gap* SectorMap::Choose(const std::vector<Gap>& gaps, std::uint32_t count, Fit fit) const {
  const Gap* smallest = nullptr;
  for (const Gap& gap : gaps) {
    if (gap.count < count) break;
    if (fit == Fit::kRoomy && gap.first == roomy_) return &gap;
    smallest = &gap;
  }
  if (fit == Fit::kEnd || smallest == nullptr) return nullptr;
  return fit == Fit::kRoomy ? &gaps.front() : smallest;
}

std::uint32_t SectorMap::Allot(std::uint32_t count, Fit fit) {
  std::uint32_t first = sectorCount_;
  const std::vector<Gap> gaps = Gaps(free_);
  if (const Gap* gap = Choose(gaps, count, fit)) {
    first = gap->first;
    free_.erase(free_.find(first), free_.lower_bound(first + count));
  } else {
    std::uint32_t length = count;
    if (fit == Fit::kRoomy && file_ != nullptr) length = std::max(count, kLeastGap + 2 * difatSectors_);
    for (std::uint32_t i = count; i < length; ++i) free_.insert(first + i);
    Extend(length);
  }
  if (fit == Fit::kRoomy) roomy_ = first + count;
  return first;
}

void SectorMap::Extend(std::uint32_t count) {
  sectorCount_ += count;
  for (auto index = static_cast<std::uint32_t>(places_.size()); index < RoundUp(sectorCount_, kEntries);
       ++index) {
    Load(index);
    changed_.insert(index);
  }
}

std::uint32_t SectorMap::Take(std::uint32_t count, Fit fit) {
  const std::uint32_t first = Allot(count, fit);
  for (std::uint32_t i = 1; i < count; ++i) SetNext(first + i - 1, first + i);
  SetNext(first + count - 1, CompoundFile::kEnd);
  return first;
}

void SectorMap::Release(std::uint32_t first, std::uint32_t count) {
  for (std::uint32_t sector = first; sector < first + count; ++sector) {
    SetNext(sector, CompoundFile::kFree);
    released_.insert(sector);
  }
}

void SectorMap::PlaceFatSector(std::uint32_t index) {
  const bool isNew = places_[index] == kUnplaced;
  if (!isNew) Release(places_[index]);
  places_[index] = Allot(1, isNew ? Fit::kEnd : Fit::kRoomy);
  SetNext(places_[index], CompoundFile::kFatSector);
}

bool SectorMap::PlaceDifat() {
  const auto count = static_cast<std::uint32_t>(places_.size());
  const std::uint32_t needed =
      count <= CompoundFile::kHeaderPlaces ? 0 : RoundUp(count - CompoundFile::kHeaderPlaces, kPlacesInDifat);
  const bool named = !changed_.empty() && *changed_.rbegin() >= CompoundFile::kHeaderPlaces;
  if (difatMoved_ ? needed == difatSectors_ : !named) return false;
  if (difatMoved_) {
    for (std::uint32_t i = 0; i < difatSectors_; ++i) {
      SetNext(firstDifat_ + i, CompoundFile::kFree);
      free_.insert(firstDifat_ + i);
    }
  } else if (difatSectors_ > 0) {
    Release(firstDifat_, difatSectors_);
  }
  difatMoved_ = true;
  difatSectors_ = needed;
  firstDifat_ = Allot(needed, Fit::kRoomy);
  for (std::uint32_t i = 0; i < needed; ++i) SetNext(firstDifat_ + i, CompoundFile::kDifatSector);
  return true;
}

void SectorMap::Seal() {
  // Giving a FAT sector its place changes the FAT, perhaps in a sector that had not changed yet, or makes the
  // file so long that it needs one more. Each is placed once, so this comes to an end.
  std::set<std::uint32_t> placed;
  do {
    while (placed.size() < changed_.size()) {
      const auto index = *std::find_if(changed_.begin(), changed_.end(),
                                       [&](std::uint32_t changed) { return !placed.contains(changed); });
      placed.insert(index);
      PlaceFatSector(index);
    }
  } while (PlaceDifat());
}

void SectorMap::Describe(CompoundFile::Header& header) const {
  header.fatSectors = static_cast<std::uint32_t>(places_.size());
  header.firstDifat = firstDifat_;
  header.difatSectors = difatSectors_;
  header.fat.fill(CompoundFile::kFree);
  std::copy_n(places_.begin(), std::min(places_.size(), header.fat.size()), header.fat.begin());
}

void SectorMap::AddImages(SectorImages& images) const {
  for (const std::uint32_t index : changed_) {
    ByteWriter out;
    for (const std::uint32_t entry : blocks_.at(index)) out.U32(entry);
    images.Keep(places_[index], std::move(out));
  }
  if (!difatMoved_) return;
  ByteWriter out;
  std::size_t next = CompoundFile::kHeaderPlaces;
  for (std::uint32_t j = 1; j <= difatSectors_; ++j) {
    for (std::uint32_t i = 0; i < kPlacesInDifat; ++i, ++next)
      out.U32(next < places_.size() ? places_[next] : CompoundFile::kFree);
    out.U32(j == difatSectors_ ? CompoundFile::kEnd : firstDifat_ + j);
  }
  images.Keep(firstDifat_, std::move(out));
}

SectorMap::Places SectorMap::FreeSectors() const {
  std::set<std::uint32_t> all = free_;
  all.insert(released_.begin(), released_.end());
  Places places;
  for (const Gap& gap : Gaps(all))
    for (std::uint32_t i = 0; i < gap.count; ++i) places.push_back(gap.first + i);
  return places;
}

}  // namespace velmar::excel
