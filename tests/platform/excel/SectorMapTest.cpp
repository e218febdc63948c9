#include "platform/excel/SectorMap.h"

#include <gtest/gtest.h>

#include <functional>
#include <set>
#include <vector>

#include "platform/excel/DamagedFile.h"
#include "platform/excel/MemoryFile.h"

namespace velmar::excel {
namespace {

using Fit = SectorMap::Fit;

struct Written {
  CompoundFile::Header header;
  std::uint32_t sectorCount;
  SectorMap::Places free;
};

Written Write(SectorMap& map, MemoryFile& file) {
  map.Seal();
  Written written{{}, map.SectorCount(), map.FreeSectors()};
  map.Describe(written.header);
  SectorImages images;
  map.AddImages(images);
  images.Write([&](std::uint64_t offset, auto bytes) { file.Write(offset, bytes); });
  if (file.Size() < CompoundFile::Offset(written.sectorCount))
    file.Resize(CompoundFile::Offset(written.sectorCount));
  return written;
}

// The chain's length; each sector of the file must be in the chain, free, or hold a part of FAT or DIFAT.
std::uint32_t Walk(const Written& written, MemoryFile& file, std::uint32_t first) {
  SectorMap map(written.header, file, written.sectorCount, written.free);
  const std::set<std::uint32_t> free(written.free.begin(), written.free.end());
  std::vector<bool> chain(written.sectorCount);
  std::uint32_t length = 0;
  for (std::uint32_t sector = first; sector != CompoundFile::kEnd; sector = map.Next(sector), ++length) {
    EXPECT_FALSE(chain[sector]);
    chain[sector] = true;
  }
  std::uint32_t fat = 0;
  std::uint32_t difat = 0;
  for (std::uint32_t sector = 0; sector < written.sectorCount; ++sector) {
    const std::uint32_t next = map.Next(sector);
    if (next == CompoundFile::kFatSector) ++fat;
    if (next == CompoundFile::kDifatSector) ++difat;
    const bool inChain = next < CompoundFile::kDifatSector || next == CompoundFile::kEnd;
    if (chain[sector] != inChain || free.contains(sector) != (next == CompoundFile::kFree))
      ADD_FAILURE() << "sector " << sector;
  }
  EXPECT_EQ(fat, written.header.fatSectors);
  EXPECT_EQ(difat, written.header.difatSectors);
  EXPECT_EQ(fat, (written.sectorCount + 127) / 128);
  EXPECT_EQ(difat, fat <= 109 ? 0 : (fat - 109 + 126) / 127);
  return length;
}

// Numbers of data sectors around which the FAT, the header's places or a DIFAT sector run full.
constexpr std::uint32_t kFullFat = 127;
constexpr std::uint32_t kFullHeader = 109 * 127;
constexpr std::uint32_t kFullDifat = (109 + 127) * 127 - 1;

class SectorMapEdge : public testing::TestWithParam<std::uint32_t> {};

TEST_P(SectorMapEdge, GrowsAndKeepsTheOldFileReadable) {
  for (std::uint32_t count = GetParam() - 1; count <= GetParam() + 1; ++count) {
    SCOPED_TRACE(count);
    MemoryFile file;
    SectorMap made;
    const std::uint32_t first = made.Take(count, Fit::kSnug);
    const Written before = Write(made, file);
    ASSERT_EQ(Walk(before, file, first), count);
    for (const std::uint32_t more : {1u, 128u}) {
      SCOPED_TRACE(more);
      MemoryFile grownFile;
      grownFile.bytes = file.bytes;
      SectorMap grown(before.header, grownFile, before.sectorCount, before.free);
      const std::uint32_t tail = grown.Take(more, Fit::kSnug);
      grown.SetNext(first + count - 2, tail);
      grown.Release(first + count - 1);
      const Written after = Write(grown, grownFile);
      EXPECT_EQ(Walk(after, grownFile, first), count - 1 + more);
      EXPECT_EQ(Walk(before, grownFile, first), count);
    }
  }
}

INSTANTIATE_TEST_SUITE_P(Edges, SectorMapEdge,
                         testing::Values(kFullFat, 2 * kFullFat, kFullHeader, kFullHeader + 127, kFullDifat,
                                         kFullDifat + 127));

TEST(SectorMap, UsesReleasedSectorsOnlyInTheNextStatement) {
  MemoryFile file;
  SectorMap made;
  const std::uint32_t data = made.Take(300, Fit::kSnug);
  Written written = Write(made, file);
  SectorMap second(written.header, file, written.sectorCount, written.free);
  second.Release(data + 100, 40);
  EXPECT_GE(second.Take(10, Fit::kRoomy), written.sectorCount);
  written = Write(second, file);
  SectorMap third(written.header, file, written.sectorCount, written.free);
  EXPECT_EQ(third.Take(40, Fit::kSnug), data + 100);
}

TEST(SectorMap, RefusesAHeaderThatDoesNotFit) {
  MemoryFile file;
  SectorMap made;
  made.Take(kFullHeader + 300, Fit::kSnug);
  const Written good = Write(made, file);
  const std::function<void(Written&)> faults[] = {
      [](Written& w) { w.header.fatSectors += 1; },
      [](Written& w) { w.header.difatSectors = 0; },
      [](Written& w) { w.header.firstDifat = w.sectorCount; },
      [](Written& w) { w.header.firstDifat = 0; },
      [](Written& w) { w.header.fat[5] = w.sectorCount; },
      [](Written& w) { w.free.push_back(w.sectorCount); },
  };
  EXPECT_NO_THROW(SectorMap(good.header, file, good.sectorCount, good.free));
  for (const auto& fault : faults) {
    Written bad = good;
    fault(bad);
    EXPECT_THROW(SectorMap(bad.header, file, bad.sectorCount, bad.free), DamagedFile) << &fault - faults;
  }
}

}  // namespace
}  // namespace velmar::excel
