#pragma once

#include <cstdint>
#include <map>
#include <set>

#include "platform/excel/SectorMap.h"

namespace velmar::excel {

/// A part of the workbook's stream in whole sectors, counted by their position in it from 0: the string
/// records, or the sheets. It grows at its tail. Only those sectors are known by number that a later
/// statement may have to replace, and the ones before them.
struct StreamArea {
  std::uint32_t sectors = 0;
  /// Where the next statement's records begin, counted in bytes from the area's beginning.
  std::uint32_t tailOffset = 0;
  /// Of the bytes in the sector of tailOffset that stand before it.
  std::uint64_t tailDigest = 0;
  std::map<std::uint32_t, std::uint32_t> known;

  std::uint32_t TailPosition() const { return tailOffset / CompoundFile::kSector; }
  std::uint32_t First() const { return At(0); }
  std::uint32_t Last() const { return At(sectors - 1); }
  /// The sector's number. DamagedFile if it is not known.
  std::uint32_t At(std::uint32_t position) const;

  /// Puts another sector in the place of one, in the same chain. If several are replaced in a statement, then
  /// ascending and before the tail.
  void Replace(SectorMap& map, std::uint32_t position, std::uint32_t sector);
  /// Puts count chained sectors, from first on, in the place of all from TailPosition on.
  void ReplaceTail(SectorMap& map, std::uint32_t first, std::uint32_t count);
  /// Ends a statement: sets the new tail, and forgets all sectors but the first, those at the given
  /// positions, those from the tail on, and the one before each.
  void SetTail(std::uint32_t offset, std::uint64_t digest, const std::set<std::uint32_t>& positions);
};

}  // namespace velmar::excel
