#include "platform/toolkit/SteadyClock.h"

#include <gtest/gtest.h>

namespace velmar::toolkit {
namespace {

TEST(SteadyClock, GoesOn) {
  const Clock& clock = SteadyClock::Instance();
  const auto start = clock.Now();
  auto now = start;
  while (now == start) now = clock.Now();
  EXPECT_GT(now, start);
}

}  // namespace
}  // namespace velmar::toolkit
