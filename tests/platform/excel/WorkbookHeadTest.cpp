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
  std::size_t longest = 0;
  for (std::size_t extra = 0; extra < 900; ++extra) {
    SCOPED_TRACE(extra);
    std::vector<WorkbookHead::Sheet> sheets(110, {std::string(11, 's'), 0});
    for (std::size_t i = 0; i < extra; ++i) sheets[i % sheets.size()].name += 'x';
    for (std::size_t i = 0; i < sheets.size(); ++i) sheets[i].offset = static_cast<std::uint32_t>(1000 * i);
    const ByteWriter head = WorkbookHead::Build(sheets, 2048, 70, 60);
    const auto bytes = head.Content();
    ASSERT_EQ(bytes.size() % 512, 0u);
    ASSERT_GE(bytes.size(), 4096u);
    longest = std::max(longest, bytes.size());

    std::size_t place = 0;
    std::size_t sheet = 0;
    std::uint32_t last = 0;
    while (place < bytes.size()) {
      last = Get32(bytes, place) & 0xFFFF;
      if (last == 0x85) {
        EXPECT_EQ(Get32(bytes, place + 4), bytes.size() + 2048 + 1000 * sheet++);
      }
      if (last == 0xFC) {
        EXPECT_EQ(Get32(bytes, place + 4), 70u);
        EXPECT_EQ(Get32(bytes, place + 8), 60u);
      }
      place += 4 + (Get32(bytes, place) >> 16);
    }
    EXPECT_EQ(place, bytes.size());
    EXPECT_EQ(last, 0xFCu);
    EXPECT_EQ(sheet, sheets.size());
  }
  EXPECT_GT(longest, 4096u);
}

}  // namespace
}  // namespace velmar::excel
