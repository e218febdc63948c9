#pragma once

#include <signal.h>

#include <array>
#include <functional>

#include "platform/toolkit/NativeQueue.h"

namespace velmar::sample {

/// While it lives, the first SIGINT or SIGTERM of the process is kept for the program to look at, and does
/// not end it; a second one of either kind does. A signal that the process ignores stays ignored. Given to a
/// message loop, it also runs an action once, inside one of the loop's turns, when a signal has come. One at
/// a time.
class CancelSignal final : public toolkit::NativeQueue {
 public:
  CancelSignal();
  ~CancelSignal() override;
  CancelSignal(const CancelSignal&) = delete;
  CancelSignal& operator=(const CancelSignal&) = delete;

  bool Raised() const noexcept;
  /// What a turn of the loop does; empty for nothing.
  void OnTurn(std::function<void()> action) { action_ = std::move(action); }

  bool Process() override;

 private:
  std::function<void()> action_;
  std::array<struct sigaction, 2> before_{};
};

}  // namespace velmar::sample
