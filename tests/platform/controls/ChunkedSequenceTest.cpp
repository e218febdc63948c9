#include "platform/controls/ChunkedSequence.h"

#include <gtest/gtest.h>

#include <random>
#include <vector>

namespace velmar::controls {
namespace {

TEST(ChunkedSequence, StaysEqualToAPlainVectorUnderRandomChanges) {
  ChunkedSequence<int> sequence;
  std::vector<int> plain;
  std::mt19937 random(7);  // NOLINT: the same changes in every run
  for (int step = 0; step < 20000; ++step) {
    const std::size_t at = random() % (plain.size() + 1);
    const auto action = random() % 10;
    if (action < 7 || at == plain.size()) {
      sequence.Insert(at, step);
      plain.insert(plain.begin() + static_cast<std::ptrdiff_t>(at), step);
    } else if (action < 9 || plain.size() < 3000) {
      sequence.Remove(at);
      plain.erase(plain.begin() + static_cast<std::ptrdiff_t>(at));
    } else {
      const std::size_t kept = plain.size() - random() % 800;
      sequence.Truncate(kept);
      plain.resize(kept);
    }
    ASSERT_EQ(sequence.size(), plain.size());
    if (!plain.empty()) {
      const std::size_t probe = random() % plain.size();
      ASSERT_EQ(sequence[probe], plain[probe]);
    }
  }
  for (std::size_t i = plain.size(); i-- > 0;) ASSERT_EQ(sequence[i], plain[i]);
  while (!sequence.empty()) sequence.Remove(0);
  sequence.Insert(0, 1);
  EXPECT_EQ(sequence[0], 1);
}

}  // namespace
}  // namespace velmar::controls
