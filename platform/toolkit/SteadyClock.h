#pragma once

#include "platform/toolkit/Clock.h"

namespace velmar::toolkit {

/// The real time, to a few milliseconds.
class SteadyClock : public Clock {
 public:
  std::chrono::nanoseconds Now() const override;
  /// One for everybody.
  static const SteadyClock& Instance();
};

}  // namespace velmar::toolkit
