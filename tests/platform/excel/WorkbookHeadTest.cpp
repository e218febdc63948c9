#include "platform/excel/WorkbookHead.h"

#include <gtest/gtest.h>

namespace velmar::excel {
namespace {

std::uint32_t Get32(std::span<const std::uint8_t> bytes, std::size_t place) {
  return bytes[place] | static_cast<std::uint32_t>(bytes[place + 1]) << 8 |
         static_cast<std::uint32_t>(bytes[place + 2]) << 16 |
         static_cast<std::uint32_t>(bytes[place + 3]) << 24;
}

// A longer name of the first sheet makes the head longer by one byte, past the 4096 that it has at least.
TEST(WorkbookHead, FillsWholeSectorsAtEachLength) {
  for (std::size_t extra = 0; extra < 900; ++extra) {
    SCOPED_TRACE(extra);
    std::vector<WorkbookHead::Sheet> sheets(110, {std::string(11, 's'), 1000});
    for (std::size_t i = 0; i < extra; ++i) sheets[i % sheets.size()].name += 'x';
    const ByteWriter head = WorkbookHead::Build(sheets, 2048, 70, 60);
    const auto bytes = head.Content();
    ASSERT_EQ(bytes.size() % 512, 0u);
    ASSERT_GE(bytes.size(), 4096u);
    std::size_t place = 0;
    std::size_t last = 0;
    for (; place < bytes.size(); place += 4 + (Get32(bytes, place) >> 16)) {
      last = place;
      if ((Get32(bytes, place) & 0xFFFF) == 0x85) {
        EXPECT_EQ(Get32(bytes, place + 4), bytes.size() + 2048 + 1000);
      }
    }
    EXPECT_EQ(place, bytes.size());
    EXPECT_EQ(Get32(bytes, last) & 0xFFFF, 0xFCu);
    EXPECT_EQ(Get32(bytes, last + 4), 70u);
    EXPECT_EQ(Get32(bytes, last + 8), 60u);
  }
}

}  // namespace
}  // namespace velmar::excel
