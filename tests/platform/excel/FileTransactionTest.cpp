#include "platform/excel/FileTransaction.h"

#include <gtest/gtest.h>

#include <numeric>

#include "platform/excel/MemoryFile.h"

namespace velmar::excel {
namespace {

TEST(FileTransaction, TakesBackWhatWasNotKept) {
  MemoryFile file;
  file.bytes.resize(2000);
  std::iota(file.bytes.begin(), file.bytes.end(), std::uint8_t{0});
  const auto before = file.bytes;
  const std::vector<std::uint8_t> piece(700, 0xAA);
  {
    FileTransaction transaction(file, file.bytes.size());
    transaction.Write(100, piece);
    transaction.Write(300, piece);   // over the one before
    transaction.Write(1800, piece);  // across the end
    transaction.Write(4000, piece);
    EXPECT_NE(file.bytes, before);
  }
  EXPECT_EQ(file.bytes, before);

  FileTransaction transaction(file, file.bytes.size());
  transaction.Write(5, piece);
  transaction.Keep();
  EXPECT_EQ(file.bytes[5], 0xAA);
}

}  // namespace
}  // namespace velmar::excel
