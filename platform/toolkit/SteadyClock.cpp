#include "platform/toolkit/SteadyClock.h"

namespace velmar::toolkit {

std::chrono::nanoseconds SteadyClock::Now() const {
  return std::chrono::steady_clock::now().time_since_epoch();
}

const SteadyClock& SteadyClock::Instance() {
  static const SteadyClock clock;
  return clock;
}

}  // namespace velmar::toolkit
