#pragma once

#include <chrono>

namespace velmar::toolkit {

/// A clock that never goes back.
class Clock {
 public:
  virtual ~Clock() = default;

  /// Time since some fixed moment.
  virtual std::chrono::nanoseconds Now() const = 0;
};

}  // namespace velmar::toolkit
