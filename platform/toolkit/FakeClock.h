#pragma once

#include "platform/toolkit/Clock.h"

namespace velmar::toolkit {

/// Stands still until it is told to go on, for tests.
class FakeClock : public Clock {
 public:
  std::chrono::nanoseconds Now() const override { return now_; }
  void Advance(std::chrono::nanoseconds by) { now_ += by; }

 private:
  std::chrono::nanoseconds now_{0};
};

}  // namespace velmar::toolkit
