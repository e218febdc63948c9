#pragma once

namespace velmar::toolkit {

/// The events of the window system.
class NativeQueue {
 public:
  virtual ~NativeQueue() = default;

  /// Handles those that wait. True if there were any that a user has caused.
  virtual bool Process() = 0;
};

}  // namespace velmar::toolkit
