#include "sample/Random.h"

#include <gtest/gtest.h>

namespace velmar::sample {
namespace {

// The first numbers of SplitMix64 for the seed 1234567, as its author published them.
TEST(RandomTest, GivesThePublishedRow) {
  Random random(1234567);
  for (const std::uint64_t expected : {6457827717110365317U, 3203168211198807973U, 9817491932198370423U,
                                       4593380528125082431U, 16408922859458223821U}) {
    EXPECT_EQ(random.Next(), expected);
  }
}

}  // namespace
}  // namespace velmar::sample
