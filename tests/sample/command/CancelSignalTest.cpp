#include "sample/command/CancelSignal.h"

#include <gtest/gtest.h>
#include <unistd.h>

#include <csignal>
#include <utility>

namespace velmar::sample {
namespace {

TEST(CancelSignalDeathTest, TheFirstIsKeptAndTheSecondEndsTheProcess) {
  for (const auto& [first, second] : {std::pair{SIGINT, SIGINT}, {SIGINT, SIGTERM}, {SIGTERM, SIGINT}}) {
    SCOPED_TRACE(first * 100 + second);
    const auto raiseBoth = [first = first, second = second] {
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
    signal.OnTurn([] {});
    std::raise(SIGINT);
    EXPECT_FALSE(signal.Raised());
    std::raise(SIGTERM);
    std::raise(SIGINT);
    EXPECT_TRUE(signal.Raised());
    EXPECT_TRUE(signal.Process());
    EXPECT_FALSE(signal.Process()) << "the action runs once";
  }
  EXPECT_EQ(std::signal(SIGINT, before), SIG_IGN);
}

}  // namespace
}  // namespace velmar::sample
