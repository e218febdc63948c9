#include "sample/Random.h"

#include <gtest/gtest.h>

#include <algorithm>

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

TEST(RandomTest, NumbersCoverTheirRangeAndNoMore) {
  Random random(7);
  std::array<int, 10> seen{};
  for (int i = 0; i < 10'000; ++i) ++seen.at(random.Below(10));
  for (const int count : seen) EXPECT_NEAR(count, 1000, 150);

  std::array<int, 3> weighted{};
  constexpr std::array<std::uint32_t, 3> kWeights = {700, 0, 300};
  for (int i = 0; i < 10'000; ++i) ++weighted.at(random.PickWeighted(kWeights, 1000));
  EXPECT_NEAR(weighted[0], 7000, 300);
  EXPECT_EQ(weighted[1], 0);
  for (int i = 0; i < 1000; ++i) {
    const int number = random.Between(-2, 2);
    EXPECT_GE(number, -2);
    EXPECT_LE(number, 2);
  }
}

TEST(RandomTest, RowsHaveGeneratorsOfTheirOwn) {
  EXPECT_EQ(Random::ForRow(5, 8).Next(), Random::ForRow(5, 8).Next());
  EXPECT_NE(Random::ForRow(5, 8).Next(), Random::ForRow(5, 9).Next());
  EXPECT_NE(Random::ForRow(5, 8).Next(), Random::ForRow(6, 8).Next());
}

}  // namespace
}  // namespace velmar::sample
