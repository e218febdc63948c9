#include "platform/excel/CompoundFile.h"

#include <gtest/gtest.h>

#include <vector>

#include "platform/excel/DamagedFile.h"

namespace velmar::excel {
namespace {

template <typename Part>
void ExpectOnlyItsFieldsMayDiffer(const Part& part, std::size_t fieldBytes) {
  const ByteWriter encoded = part.Encode();
  std::vector<std::uint8_t> bytes(encoded.Content().begin(), encoded.Content().end());
  ASSERT_EQ(bytes.size(), CompoundFile::kSector);
  std::size_t accepted = 0;
  for (std::uint8_t& byte : bytes) {
    byte ^= 0x40;
    try {
      const ByteWriter again = Part::Decode(bytes).Encode();
      EXPECT_TRUE(std::equal(bytes.begin(), bytes.end(), again.Content().begin()));
      ++accepted;
    } catch (const DamagedFile&) {
    }
    byte ^= 0x40;
  }
  EXPECT_EQ(accepted, fieldBytes);
}

TEST(CompoundFile, HeaderRefusesForeignBytes) {
  CompoundFile::Header header{.fatSectors = 2, .directorySector = 7, .firstDifat = 9, .difatSectors = 1};
  header.fat.fill(CompoundFile::kFree);
  ExpectOnlyItsFieldsMayDiffer(header, 4 * (4 + CompoundFile::kHeaderPlaces));
}

TEST(CompoundFile, DirectoryRefusesForeignBytes) {
  ExpectOnlyItsFieldsMayDiffer(CompoundFile::Directory{1, 8192, 30, 4096}, 4 * 4);
}

}  // namespace
}  // namespace velmar::excel
