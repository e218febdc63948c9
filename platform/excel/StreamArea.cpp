#include "platform/excel/StreamArea.h"

#include "platform/excel/DamagedFile.h"

namespace velmar::excel {

std::uint32_t StreamArea::At(std::uint32_t position) const {
  const auto found = known.find(position);
  if (found == known.end()) throw DamagedFile();
  return found->second;
}

void StreamArea::Replace(SectorMap& map, std::uint32_t position, std::uint32_t sector) {
  const std::uint32_t old = At(position);
  map.SetNext(sector, map.Next(old));
  if (position > 0) map.SetNext(At(position - 1), sector);
  map.Release(old);
  known[position] = sector;
}

void StreamArea::ReplaceTail(SectorMap& map, std::uint32_t first, std::uint32_t count) {
  const std::uint32_t tail = TailPosition();
  for (std::uint32_t position = tail; position < sectors; ++position) {
    if (position > 0 && position == tail && map.Next(At(position - 1)) != At(position)) throw DamagedFile();
    map.Release(At(position));
  }
  if (tail > 0) map.SetNext(At(tail - 1), first);
  known.erase(known.lower_bound(tail), known.end());
  for (std::uint32_t i = 0; i < count; ++i) known.emplace_hint(known.end(), tail + i, first + i);
  sectors = tail + count;
}

void StreamArea::SetTail(std::uint32_t offset, std::uint64_t digest,
                         const std::set<std::uint32_t>& positions) {
  tailOffset = offset;
  tailDigest = digest;
  const std::uint32_t tail = TailPosition();
  std::erase_if(known, [&](const auto& entry) {
    const std::uint32_t position = entry.first;
    return position != 0 && position + 1 < tail && !positions.contains(position) &&
           !positions.contains(position + 1);
  });
}

}  // namespace velmar::excel
