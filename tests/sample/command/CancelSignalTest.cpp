#include "sample/command/CancelSignal.h"

#include <gtest/gtest.h>
#include <unistd.h>

#include <csignal>
#include <utility>

namespace velmar::sample {
namespace {

TEST(CancelSignalDeathTest, TheFirstIsKeptAndTheSecondEndsTheProcess) {
  const std::pair<int, int> cases[] = {
      {SIGINT, SIGINT}, {SIGINT, SIGTERM}, {SIGTERM, SIGINT}, {SIGTERM, SIGTERM}};
  for (const auto& [first, second] : cases) {
    SCOPED_TRACE(first * 100 + second);
    const auto raiseBoth = [&] {
      const CancelSignal signal;
      std::raise(first);
      if (signal.Raised()) std::raise(second);
      _exit(0);
    };
    EXPECT_EXIT(raiseBoth(), testing::KilledBySignal(second), "");
  }
}

TEST(CancelSignal, LeavesIgnoredWhatIsIgnoredAndPutsAllBack) {
  const auto before = std::signal(SIGINT, SIG_IGN);
  {
    CancelSignal signal;
    std::raise(SIGINT);
    EXPECT_FALSE(signal.Raised());
    std::raise(SIGTERM);
    std::raise(SIGINT);
    EXPECT_TRUE(signal.Raised());
    int runs = 0;
    signal.OnTurn([&] { ++runs; });
    while (signal.Process()) {
    }
    EXPECT_EQ(runs, 1);
  }
  EXPECT_EQ(std::signal(SIGINT, before), SIG_IGN);
}

}  // namespace
}  // namespace velmar::sample
