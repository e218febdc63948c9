#include "export/PendingBlocks.h"

#include <gtest/gtest.h>

#include "platform/controls/Timer.h"

namespace velmar::testing {
namespace {

TEST(PendingBlocks, TakesOutOneNumberAndNoOther) {
  controls::Timer holder("tmrExportacion");
  exporting::PendingBlocks pending(holder);
  EXPECT_TRUE(pending.Empty());
  for (int block = 0; block < 22; ++block) pending.Add(block);
  // 1 stands inside 11, 21 and 12 to 19.
  for (const int block : {1, 11, 1, 99, 0, 21}) pending.Remove(block);
  for (int block = 2; block < 21; ++block) {
    EXPECT_EQ(pending.Holds(block), block != 11);
    if (block != 11) pending.Remove(block);
  }
  EXPECT_TRUE(pending.Empty());
  EXPECT_EQ(holder.Tag(), "");
}

}  // namespace
}  // namespace velmar::testing
