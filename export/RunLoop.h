#pragma once

#include "platform/toolkit/Toolkit.h"

namespace velmar::exporting {

/// Unwinds a run that the user has cancelled. No failure, and no std::exception, so that nothing that goes on
/// after failures swallows it.
struct RunCancelled {};

/// The message loop as a run sees it: each turn is also a safe point at which a cancelled run stops.
class RunLoop {
 public:
  explicit RunLoop(toolkit::Toolkit& toolkit) : toolkit_(toolkit) {}

  /// One turn of the loop. Throws RunCancelled behind it if the user has cancelled.
  void DoEvents() {
    toolkit_.DoEvents();
    if (cancelled_) throw RunCancelled();
  }

  void Begin() noexcept { cancelled_ = false; }
  void Cancel() noexcept { cancelled_ = true; }
  bool Cancelled() const noexcept { return cancelled_; }

 private:
  toolkit::Toolkit& toolkit_;
  bool cancelled_ = false;
};

}  // namespace velmar::exporting
