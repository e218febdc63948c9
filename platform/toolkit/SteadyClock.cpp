#include "platform/toolkit/SteadyClock.h"

#include <time.h>

namespace velmar::toolkit {

std::chrono::nanoseconds SteadyClock::Now() const {
  // The coarse clock is some milliseconds behind, and a quarter of the price: an export asks for each value.
  timespec time{};
  clock_gettime(CLOCK_MONOTONIC_COARSE, &time);
  return std::chrono::seconds(time.tv_sec) + std::chrono::nanoseconds(time.tv_nsec);
}

const SteadyClock& SteadyClock::Instance() {
  static const SteadyClock clock;
  return clock;
}

}  // namespace velmar::toolkit
