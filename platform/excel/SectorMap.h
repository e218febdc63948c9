#pragma once

#include <array>
#include <cstdint>
#include <map>
#include <set>
#include <vector>

#include "platform/excel/CompoundFile.h"
#include "platform/excel/File.h"
#include "platform/excel/SectorImages.h"

namespace velmar::excel {

/// Which sector follows which: the owner of FAT and DIFAT, and of what is free.
///
/// No sector that the file's header leads to is ever written over. A changed FAT sector moves to a new place,
/// and so does the DIFAT that names it; only sectors that were free before the statement, and such behind
/// the end, are handed out. The file therefore stays what it was until the new header is written.
///
/// Of the FAT, only sectors that are looked at are read. The DIFAT is held whole: 4 bytes for 64 KiB of file.
class SectorMap {
 public:
  using Places = std::vector<std::uint32_t>;
  /// Where to take sectors from. What stays: the smallest gap that is long enough, or behind the end. What
  /// each statement writes anew: one long gap as long as it lasts, so that it leaves in one write.
  enum class Fit { kSnug, kEnd, kRoomy };

  /// The map of an empty file.
  SectorMap() = default;
  /// The map of a file of sectorCount sectors, of which the free ones are given. The file must outlive it.
  /// DamagedFile if header, DIFAT and sectorCount do not fit together.
  SectorMap(const CompoundFile::Header& header, File& file, std::uint32_t sectorCount, const Places& free);

  /// What follows the sector, or one of the marks of CompoundFile.
  std::uint32_t Next(std::uint32_t sector);
  void SetNext(std::uint32_t sector, std::uint32_t next);
  /// Hands out count > 0 sectors side by side, chained, the last one marked as an end. Returns the first.
  std::uint32_t Take(std::uint32_t count, Fit fit);
  /// Gives count sectors back. They are handed out again by a later statement only.
  void Release(std::uint32_t first, std::uint32_t count = 1);

  /// Finds places for all FAT and DIFAT sectors that have changed. Nothing may change after it.
  void Seal();
  /// After Seal: the map's part of the header, and the sectors to write.
  void Describe(CompoundFile::Header& header) const;
  void AddImages(SectorImages& images) const;

  std::uint32_t SectorCount() const { return sectorCount_; }
  /// After Seal: what the next statement may take, the longest gaps first.
  Places FreeSectors() const;

 private:
  static constexpr std::uint32_t kEntries = CompoundFile::kSector / 4;
  static constexpr std::uint32_t kPlacesInDifat = kEntries - 1;
  /// What an append moves beside its rows: directory, head, state, some FAT sectors, and then the DIFAT.
  static constexpr std::uint32_t kLeastGap = 48;
  using Block = std::array<std::uint32_t, kEntries>;
  struct Gap {
    std::uint32_t first;
    std::uint32_t count;
  };

  static std::vector<Gap> Gaps(const std::set<std::uint32_t>& sectors);
  const Gap* Choose(const std::vector<Gap>& gaps, std::uint32_t count, Fit fit) const;

  Block& Load(std::uint32_t index);
  std::uint32_t Allot(std::uint32_t count, Fit fit);
  void Extend(std::uint32_t count);
  void PlaceFatSector(std::uint32_t index);
  bool PlaceDifat();
  void LoadDifat(const CompoundFile::Header& header);

  File* file_ = nullptr;
  std::uint32_t sectorCount_ = 0;
  Places places_;  // of the FAT sectors
  std::map<std::uint32_t, Block> blocks_;
  std::set<std::uint32_t> changed_;
  std::set<std::uint32_t> free_;
  std::uint32_t roomy_ = 0;  // behind the last sectors taken as kRoomy
  std::set<std::uint32_t> released_;
  std::uint32_t firstDifat_ = CompoundFile::kEnd;
  std::uint32_t difatSectors_ = 0;
  bool difatMoved_ = false;
};

}  // namespace velmar::excel
